#pragma once

#include "editor/language/SpellingMarks.h"
#include "language/spelling/SpellingWords.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <optional>

class QPainter;
class QRectF;
class QTextDocument;
class RtfBox;
class Spelling;
struct Variables;

// Underlines the doubtful words in the box on the screen. It paints over the page and leaves the
// document, its formats and its undo list alone. What is to be seen is read first, a change at
// once, and the rest while the author does nothing. A word that is being typed stays as it is until
// the caret has left it.
class SpellingUnderlines : public QObject
{
    Q_OBJECT

public:
    using Range = SpellingMarks::Range;
    // Whether something that counts for more is underlined there already.
    using IsTaken = std::function<bool(Range)>;

    // All must outlive it.
    SpellingUnderlines(const Variables &variables, Spelling &spelling, RtfBox &box,
                       IsTaken isTaken);

    // Shown at first, while an adventure is open.
    void setShown(bool shown);

    // The doubtful word under a point of the viewport.
    std::optional<Range> under(const QPoint &point) const;

    // The doubtful word at a position of the document, its end included; also one that is not
    // underlined because it is being typed.
    std::optional<Range> at(int position) const;

    bool isTaken(Range word) const { return m_isTaken(word); }

    // Whether all of the text has been read.
    bool isRead() const { return m_document == currentDocument() && m_marks.isRead(); }

    // Reads for so many milliseconds; what is visible comes first.
    void readFor(qint64 milliseconds);

private:
    QTextDocument *currentDocument() const;
    bool isActive() const;
    void begin();
    void readAgain();
    void follow();
    void noteChange(int position, int removed, int added);
    void noteCaret();
    void read(Range range);
    Range visible() const;
    Range visible(const QRect &area) const;
    bool isQuiet(Range word) const;
    void paint(QPainter &painter, const QRect &area);
    void forEachPiece(Range word, const std::function<void(const QRectF &)> &piece) const;

    const Variables &m_variables;
    Spelling &m_spelling;
    RtfBox &m_box;
    IsTaken m_isTaken;
    SpellingMarks m_marks;
    QPointer<QTextDocument> m_document; // of which these are
    int m_number = -1;                  // of its paragraph
    std::optional<int> m_typedAt;       // in the word that is being typed
    bool m_shown = true;
    QTimer m_idle;
};
