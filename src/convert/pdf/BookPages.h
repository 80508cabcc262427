#pragma once

#include "convert/pdf/SetParagraph.h"
#include "store/extras/AdventureExtras.h"

#include <QHash>

// The pages of a printed book, drawn one at a time. Pages count from 0; of a book with two sides
// those with even numbers lie on the right. All lengths are twips from the upper left corner of
// the paper.
class BookPages
{
public:
    // What stands on pages of its own.
    enum class Kind { Dedication, Matter, Paragraphs };
    struct Section {
        Kind kind;
        std::vector<SetParagraph> paragraphs;
    };

    BookPages(const BookFonts &fonts, const PageSetup &setup, const QString &title,
              std::vector<Section> sections);
    BookPages(BookPages &&) = default;
    BookPages &operator=(BookPages &&) = default;

    // The width that text has on a page.
    static double textWidth(const PageSetup &setup);

    int count() const { return static_cast<int>(m_pages.size()); }
    const PageSetup &setup() const { return m_setup; }
    QSizeF paper() const;

    void draw(QPainter &painter, int page) const;
    QList<PageLink> links(int page) const;

    struct Place {
        int page = 0;
        double y = 0;
    };
    const QHash<int, Place> &places() const { return m_places; } // of the paragraphs by number
    // Of the paragraph that a page begins with; 0 where there is none.
    int numberOn(int page) const;
    // The numbers of the book, ascending.
    QList<int> numbers() const;

private:
    struct Page {
        const Section *section; // null: an empty page
        FlowPage pieces;
    };

    void addPages(const Section &section);
    void addPlaces();
    bool isRight(int page) const { return !m_setup.twoSided || page % 2 == 0; }
    PageRoom room(Kind kind) const;
    QPointF corner(int page) const; // of the text
    double top(const Page &page) const;
    QString numbersOn(const Page &page) const;
    void drawHead(QPainter &painter, int page) const;
    void drawFoot(QPainter &painter, int page) const;
    void drawLine(QPainter &painter, const QString &text, int page, double baseline,
                  Qt::Alignment alignment) const;

    PageSetup m_setup;
    QString m_title;
    QFont m_marginFont;
    double m_leading;
    std::vector<Section> m_sections;
    std::vector<Page> m_pages;
    QHash<int, Place> m_places;
};
