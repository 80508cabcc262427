#pragma once

#include "store/references/ReferenceMarks.h"

#include <QObject>
#include <QRectF>
#include <QTextBlock>
#include <functional>
#include <optional>

class QPainter;
class RtfBox;
struct Variables;

// Underlines the references in the box on the screen: faintly where the target is written, dotted
// where it is empty, with a wave where something is doubtful. It paints over the page and leaves
// the document, its formats and its undo list alone.
//
// A line of the text is read again only when it or the line before it has changed.
class ReferenceUnderlines : public QObject
{
    Q_OBJECT

public:
    // Both must outlive it.
    ReferenceUnderlines(const Variables &variables, RtfBox &box);

    // Shown at first, while an adventure is open.
    bool areShown() const { return m_shown; }
    void setShown(bool shown);

    // A mark and the line that it stands in. position: in the document.
    struct Place {
        QTextBlock block;
        ReferenceMark mark;
        int position() const { return block.position() + static_cast<int>(mark.position); }
    };
    // What is underlined under a point of the viewport, and at a position of the document, its end
    // included.
    std::optional<Place> under(const QPoint &point) const;
    std::optional<Place> at(int position) const;

    // Whether a doubtful reference has some of the text between two positions of the document,
    // which stand in one line of it.
    bool isDoubtful(int begin, int end) const;

    // The line that a mark stands in on the viewport.
    QRect rectOf(const Place &place) const;

    // To be called when the target phrase may be another one.
    void followPhrase();

private:
    using Piece = std::function<void(const ReferenceMark &mark, const QRectF &line)>;
    const QList<ReferenceMark> &marksOf(const QTextBlock &block) const;
    QRectF rectOf(const QTextBlock &block) const;
    void forEachPiece(const QTextBlock &block, const QRectF &area, const Piece &piece) const;
    void paint(QPainter &painter, const QRect &area) const;
    void paintLine(QPainter &painter, int target, const QRectF &line) const;
    void updateBehind(int position) const;

    const Variables &m_variables;
    RtfBox &m_box;
    bool m_shown = true;
    QString m_phrase; // as last painted
};
