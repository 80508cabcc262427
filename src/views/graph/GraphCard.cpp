#include "views/graph/GraphCard.h"

#include "views/ParagraphStatuses.h"
#include "views/graph/GraphNodes.h"
#include "views/graph/GraphPainter.h"

#include <QFont>
#include <QPainter>

namespace
{
constexpr double Round = 4.0;
constexpr double BandWidth = 14.0;
constexpr double MarkWidth = 11.0; // at the right of the card
constexpr double NumberPixels = 13.0;
constexpr double LetterPixels = 10.0;
constexpr double FrameWidth = 3.0; // of the current one
constexpr QRgb StopSign = qRgb(0xC6, 0x28, 0x28);

QColor between(const QColor &one, const QColor &other)
{
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
            (one.blue() + other.blue()) / 2};
}

void paintFrame(QPainter &painter, const QRectF &room, const GraphLook &look)
{
    painter.setPen(QPen(look.ink, 1));
    painter.setBrush(statusColour(Current));
    painter.drawRoundedRect(
        room.marginsAdded(QMarginsF(FrameWidth, FrameWidth, FrameWidth, FrameWidth)),
        Round + FrameWidth, Round + FrameWidth);
}

void paintBand(QPainter &painter, const QRectF &room, quint8 status)
{
    const QRectF band(room.left(), room.top(), BandWidth, room.height());
    QPainterPath path;
    path.moveTo(band.topRight());
    path.lineTo(band.left() + Round, band.top());
    path.quadTo(band.topLeft(), band.topLeft() + QPointF(0, Round));
    path.lineTo(band.left(), band.bottom() - Round);
    path.quadTo(band.bottomLeft(), band.bottomLeft() + QPointF(Round, 0));
    path.lineTo(band.bottomRight());
    path.closeSubpath();
    painter.fillPath(path, statusColour(status));
    painter.setFont(graphFont(LetterPixels));
    painter.setPen(Qt::black); // readable on all those colours
    painter.drawText(band, Qt::AlignCenter, statusLetter(status));
}

void paintShownMark(QPainter &painter, const QPointF &centre, double side, const QColor &ink)
{
    const double unit = side / 8;
    QPainterPath hook(centre + QPointF(-3, 1) * unit);
    hook.lineTo(centre + QPointF(1, 1) * unit);
    hook.cubicTo(centre + QPointF(4, 1) * unit, centre + QPointF(4, -3) * unit,
                 centre + QPointF(1, -3) * unit);
    hook.lineTo(centre + QPointF(-1, -3) * unit);
    hook.moveTo(centre + QPointF(-1, -1) * unit);
    hook.lineTo(centre + QPointF(-3, 1) * unit);
    hook.lineTo(centre + QPointF(-1, 3) * unit);
    painter.setPen(QPen(ink, 1.2 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(hook);
}
} // namespace

QFont graphFont(double pixels)
{
    QFont font;
    font.setPixelSize(qRound(pixels));
    return font;
}

void paintKindMark(QPainter &painter, GraphNode::Kind kind, const QPointF &centre, double side,
                   const GraphLook &look)
{
    const double unit = side / 8;
    if (kind == GraphNode::Kind::Shown) {
        paintShownMark(painter, centre, side, look.ink);
    } else if (kind == GraphNode::Kind::Stopped) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(StopSign));
        painter.drawEllipse(centre, side / 2, side / 2);
        painter.setBrush(Qt::white);
        painter.drawRect(QRectF(centre - QPointF(2.5, 0.8) * unit, QSizeF(5, 1.6) * unit));
    } else if (kind == GraphNode::Kind::Cut) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(look.ink);
        for (const int step : {-1, 0, 1})
            painter.drawEllipse(centre + QPointF(step * 2.8 * unit, 0), unit, unit);
    }
}

void paintCard(QPainter &painter, const GraphNode &node, const GraphLook &look)
{
    const QRectF room = roomOf(node);
    if (node.current)
        paintFrame(painter, room, look);
    const bool shown = node.kind == GraphNode::Kind::Shown;
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.card);
    painter.drawRoundedRect(room, Round, Round);
    paintBand(painter, room, node.status);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(between(look.ink, look.card), 1, shown ? Qt::DashLine : Qt::SolidLine));
    painter.drawRoundedRect(room, Round, Round);
    const QRectF number = room.adjusted(BandWidth, 0, -MarkWidth, 0);
    if (node.fixed)
        painter.fillRect(QRectF(number.left() + 1, room.bottom() - 4, number.width(), 2.5),
                         look.ink);
    painter.setFont(graphFont(NumberPixels));
    painter.setPen(look.ink);
    painter.drawText(number, Qt::AlignCenter, QString::number(node.number));
    paintKindMark(painter, node.kind, {room.right() - MarkWidth / 2 - 0.5, room.center().y()},
                  MarkWidth - 3, look);
}

void paintDot(QPainter &painter, const GraphNode &node, const GraphLook &look)
{
    const QRectF room = roomOf(node);
    if (node.current) {
        // Found at a glance in the smallest picture.
        constexpr double wide = NumberPixels;
        painter.fillRect(room.marginsAdded(QMarginsF(wide, wide, wide, wide)), look.ink);
        painter.fillRect(room.marginsAdded(QMarginsF(wide, wide, wide, wide) / 2),
                         statusColour(Current));
    }
    // Of many equal ones those that are followed stand out.
    const bool shown = node.kind == GraphNode::Kind::Shown;
    const QRectF dot =
        shown ? room.adjusted(0, room.height() / 4, -room.width() / 2, -room.height() / 4) : room;
    painter.fillRect(dot, node.status == Empty ? look.edge : statusColour(node.status));
}
