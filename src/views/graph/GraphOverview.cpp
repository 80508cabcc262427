#include "views/graph/GraphOverview.h"

#include "views/graph/GraphDrawing.h"
#include "views/graph/GraphPainter.h"

#include <QPainter>
#include <algorithm>

namespace
{
constexpr QSize Largest(200, 160);
constexpr int LeastSide = 24; // of a long thin picture: wide enough to be pointed at
constexpr int Away = 8;       // from the edges of the view

QRect placeOf(const GraphDrawing &drawing, const QSize &size)
{
    const QSize most = Largest.boundedTo(size / 3);
    const QSize fitting = drawing.bounds.size().scaled(most, Qt::KeepAspectRatio).toSize();
    QRect room(QPoint(), fitting.expandedTo({LeastSide, LeastSide}));
    room.moveBottomRight({size.width() - Away, size.height() - Away});
    return room;
}
} // namespace

QRect GraphOverview::room(const GraphDrawing &drawing, const GraphView &view,
                          const QSize &size) const
{
    const QRectF seen = view.toPicture(QRectF(QPointF(), size));
    const bool all = drawing.nodes.isEmpty() || seen.contains(drawing.bounds);
    return all ? QRect() : placeOf(drawing, size);
}

// The image is made with the first painting of the picture, and no movement has to wait for it.
void GraphOverview::paint(QPainter &painter, const GraphPainter &graph, const GraphDrawing &drawing,
                          const GraphView &view, const QSize &size)
{
    const QRect place = placeOf(drawing, size);
    const double acrossScale = place.width() / drawing.bounds.width();
    const double downScale = place.height() / drawing.bounds.height();
    const double pixelRatio = painter.device()->devicePixelRatioF();
    if (m_image.size() != (QSizeF(place.size()) * pixelRatio).toSize()) {
        m_image = QImage((QSizeF(place.size()) * pixelRatio).toSize(), QImage::Format_RGB32);
        m_image.setDevicePixelRatio(pixelRatio);
        m_image.fill(graph.look().card);
        QPainter small(&m_image);
        small.scale(acrossScale, downScale);
        small.translate(-drawing.bounds.topLeft());
        graph.paint(small, drawing.bounds);
    }
    if (room(drawing, view, size).isEmpty())
        return;
    painter.drawImage(place.topLeft(), m_image);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(graph.look().edge);
    painter.drawRect(place);
    const QRectF seen = view.toPicture(QRectF(QPointF(), size)).intersected(drawing.bounds);
    const QPointF corner = seen.topLeft() - drawing.bounds.topLeft();
    painter.setClipRect(place.adjusted(0, 0, 1, 1));
    painter.setPen(QPen(graph.look().strongOut, 2));
    painter.drawRect(QRectF(
        place.x() + corner.x() * acrossScale, place.y() + corner.y() * downScale,
        std::max(4.0, seen.width() * acrossScale), std::max(4.0, seen.height() * downScale)));
    painter.setClipping(false);
}

QPointF GraphOverview::toPicture(const QPointF &point, const QRect &room, const QRectF &bounds)
{
    const QPointF part = point - QPointF(room.topLeft());
    return bounds.topLeft() + QPointF(part.x() * bounds.width() / room.width(),
                                      part.y() * bounds.height() / room.height());
}
