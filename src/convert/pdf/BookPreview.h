#pragma once

#include "convert/book/Book.h"
#include "convert/pdf/BookTypesetter.h"

#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>

class SpreadView;

// Keeps the spread in view as the author would have it: a moment after the last change the book is
// set anew, a few milliseconds at a time, and its pages are shown where the old ones were.
class BookPreview : public QObject
{
    Q_OBJECT

public:
    // Begins at the current paragraph.
    BookPreview(const Variables &variables, SpreadView &view);
    ~BookPreview() override;

    struct Wanted {
        ExportRange range;
        BookFacts facts;
        PageSetup setup; // without a fault
        bool operator==(const Wanted &) const = default;
    };
    void show(const Wanted &wanted);

    // Gives back the room that the book takes, as long as something else makes it; the spread stays
    // in view. It is made again with the next show().
    void rest();

    // By so many spreads.
    void turn(int spreads);

    // "Pages 12 et 13 de 240"; empty as long as nothing is shown.
    QString place() const;
    // What is not as the author wants it, such as fonts that are missing. May be empty.
    const QString &remarks() const { return m_remarks; }
    bool hasBefore() const;
    bool hasNext() const;

Q_SIGNALS:
    void changed();

private:
    void begin();
    void work();
    void finish();
    void showPage(int page);
    int pageOfNumber() const;

    const Variables &m_variables;
    SpreadView &m_view;
    QTimer m_wait;
    QTimer m_work;
    std::optional<Wanted> m_wanted;
    std::optional<ExportRange> m_read; // what the book was read for
    Book m_book;
    std::unique_ptr<BookTypesetter> m_typesetter;
    std::shared_ptr<const BookPages> m_pages;
    QString m_remarks;
    int m_page = 0;
    int m_number; // of the paragraph to be seen
};
