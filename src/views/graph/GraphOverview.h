#pragma once

#include "views/graph/GraphView.h"

#include <QImage>

class GraphPainter;
class QPainter;
struct GraphDrawing;

// The whole picture, small, in the lower right corner of a view, with a frame around what the view
// shows of it. It is not there while the view shows all.
class GraphOverview
{
public:
    void clear() { m_image = {}; }

    // Where it stands in a view of this size; empty when it is not there.
    QRect room(const GraphDrawing &drawing, const GraphView &view, const QSize &size) const;

    void paint(QPainter &painter, const GraphPainter &graph, const GraphDrawing &drawing,
               const GraphView &view, const QSize &size);

    // The point of the picture that a point of room() stands for.
    static QPointF toPicture(const QPointF &point, const QRect &room, const QRectF &bounds);

private:
    QImage m_image;
};
