#pragma once

#include "views/graph/GraphView.h"

#include <QHash>
#include <QImage>

class GraphPainter;
class QPainter;

// A painted picture, kept in tiles: while it moves only tiles that come into sight are painted, as
// many as there is time for, and what is missing meanwhile is shown as it looked before the last
// change of scale.
class GraphTiles
{
public:
    // What is to be shown where. pixelRatio: device pixels to one of the view.
    struct Frame {
        GraphView view;
        QSize size;
        double pixelRatio = 1;
    };
    // Missing tiles are left out while the scale goes on changing.
    enum class Missing { Paint, Leave };

    // Another picture, or the same in another look: nothing that was painted counts any more.
    void clear();

    // Shows a frame. One missing tile is painted at least, and more for so many milliseconds.
    // Returns false while there are still missing ones.
    bool paint(QPainter &target, const GraphPainter &graph, const Frame &frame, Missing missing,
               int milliseconds);

private:
    void keepBefore(const QColor &page);
    void paintBefore(QPainter &target, const GraphView &view) const;
    void paintTiles(QPainter &target, const Frame &frame) const;
    bool makeTiles(const GraphPainter &graph, const Frame &frame, int milliseconds);
    void forgetFar(const QRect &wanted);

    QHash<QPoint, QImage> m_tiles; // of m_shown's scale, by column and row from the picture's zero
    Frame m_shown;
    Frame m_beforeFrame; // what was seen when the scale last changed
    QImage m_before;
};
