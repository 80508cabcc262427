#include "views/graph/GraphPainter.h"

#include "views/graph/GraphCard.h"
#include "views/graph/GraphNodes.h"

#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace
{
constexpr double ReadableHeight = 10.0; // of a node, in the painter's pixels
constexpr double FineScale = 0.5;       // below it curves are hairlines
constexpr double TinyCurve = 8.0;       // in the painter's pixels: no bend is seen in it
constexpr double LabelPixels = 13.0;

QColor mixed(const QColor &one, const QColor &other, double part)
{
    const auto mix = [part](int a, int b) { return qRound(a * part + b * (1 - part)); };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()),
            mix(one.blue(), other.blue())};
}

// From one layer to another to the other side of the nodes; within one layer in a bow, and along a
// row above the nodes that stand between.
QPainterPath curve(QPointF from, QPointF to)
{
    const double along = to.x() - from.x();
    const double half = GraphSize::NodeWidth / 2;
    const bool within = std::abs(along) < GraphSize::NodeWidth;
    const double side = along >= 0 || within ? 1 : -1;
    from.rx() += side * half;
    to.rx() += within ? half : -side * half;
    const double bend = within ? 48 : std::clamp(std::abs(to.x() - from.x()) / 2, 24.0, 200.0);
    const bool overOthers = std::abs(along) > 2.4 * GraphSize::NodeWidth &&
                            std::abs(to.y() - from.y()) < GraphSize::NodeHeight / 2;
    const double rise = overOthers ? -1.5 * GraphSize::NodeHeight : 0;
    QPainterPath path(from);
    path.cubicTo(from + QPointF(side * bend, rise),
                 to + QPointF(within ? bend : -side * bend, rise), to);
    return path;
}

QPainterPath edgePath(const GraphDrawing &drawing, const GraphEdge &edge)
{
    const QPointF from = drawing.nodes.at(edge.from).centre;
    const QPointF to = drawing.nodes.at(edge.to).centre;
    const bool loop = edge.from == edge.to;
    const QPointF aside(0, loop ? GraphSize::NodeHeight / 3 : 0);
    return curve(from - aside, to + aside);
}

void paintArrow(QPainter &painter, const QPainterPath &path, double size)
{
    const QPointF tip = path.pointAtPercent(1);
    const QPointF behind = path.elementAt(2); // the last control point: the curve comes from there
    const double angle = std::atan2(tip.y() - behind.y(), tip.x() - behind.x());
    const auto corner = [&](double turn) {
        return tip - size * QPointF(std::cos(angle + turn), std::sin(angle + turn));
    };
    painter.drawPolygon(QPolygonF{tip, corner(0.45), corner(-0.45)});
}
} // namespace

GraphLook GraphLook::of(const QPalette &palette)
{
    const QColor page = palette.color(QPalette::Base);
    const QColor ink = palette.color(QPalette::Text);
    const bool dark = page.lightness() < ink.lightness();
    return {page,
            mixed(ink, page, dark ? 0.12 : 0.03),
            ink,
            mixed(ink, page, dark ? 0.45 : 0.38),
            dark ? QColor(0x6C, 0xB2, 0xFF) : QColor(0x1F, 0x5F, 0xD0),
            dark ? QColor(0xFF, 0xB0, 0x4D) : QColor(0xB8, 0x50, 0x00)};
}

GraphLook GraphLook::paper()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return of(palette);
}

GraphPainter::GraphPainter(const GraphDrawing &drawing, const GraphLook &look)
    : m_drawing(drawing), m_look(look)
{
    m_curves.reserve(drawing.edges.size());
    for (const GraphEdge &edge : drawing.edges) {
        const QPainterPath path = edgePath(drawing, edge);
        m_curves.append({path, path.controlPointRect().adjusted(-2, -2, 2, 2)});
    }
}

void GraphPainter::paint(QPainter &painter, const QRectF &visible) const
{
    const double scale = std::abs(painter.worldTransform().m11());
    const bool readable = scale * GraphSize::NodeHeight >= ReadableHeight;
    painter.save();
    paintEdges(painter, visible, scale);
    painter.setRenderHint(QPainter::Antialiasing, readable);
    if (readable)
        paintLabels(painter, visible);
    constexpr double frame = GraphSize::NodeHeight; // what is painted around a node
    const QRectF around = visible.adjusted(-frame, -frame, frame, frame);
    for (const GraphNode &node : m_drawing.nodes) {
        if (!around.intersects(roomOf(node)))
            continue;
        if (readable)
            paintCard(painter, node, m_look);
        else
            paintDot(painter, node, m_look);
    }
    painter.restore();
}

void GraphPainter::paintEdges(QPainter &painter, const QRectF &visible, double scale) const
{
    const bool fine = scale >= FineScale;
    painter.setRenderHint(QPainter::Antialiasing, fine);
    QPen pen(m_look.edge, fine ? 1.2 : 0);
    if (!fine) {
        QColor light = m_look.edge;
        light.setAlphaF(0.6F);
        pen.setColor(light);
    }
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const double tiny = TinyCurve / scale;
    QList<QLineF> lines;
    for (const Curve &curve : m_curves) {
        if (!visible.intersects(curve.box))
            continue;
        if (curve.box.width() < tiny && curve.box.height() < tiny)
            lines.append({curve.path.pointAtPercent(0), curve.path.currentPosition()});
        else
            painter.drawPath(curve.path);
    }
    painter.drawLines(lines);
}

void GraphPainter::paintLabels(QPainter &painter, const QRectF &visible) const
{
    painter.setFont(graphFont(LabelPixels));
    painter.setPen(mixed(m_look.ink, m_look.page, 0.7));
    for (const GraphLabel &label : m_drawing.labels)
        if (visible.intersects(label.room))
            painter.drawText(label.room, Qt::AlignCenter, label.text);
}

void GraphPainter::paintStrong(QPainter &painter, int node) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QList<int> ends;
    for (const GraphEdge &edge : m_drawing.edges) {
        if (edge.from == node)
            paintStrongEdge(painter, edge, m_look.strongOut, Qt::SolidLine);
        else if (edge.to == node)
            paintStrongEdge(painter, edge, m_look.strongIn, Qt::DashLine);
        else
            continue;
        ends.append(edge.from == node ? edge.to : edge.from);
    }
    ends.append(node);
    const double scale = std::abs(painter.worldTransform().m11());
    for (const int end : std::as_const(ends)) {
        if (scale * GraphSize::NodeHeight >= ReadableHeight)
            paintCard(painter, m_drawing.nodes.at(end), m_look);
        else
            paintDot(painter, m_drawing.nodes.at(end), m_look);
    }
    painter.restore();
}

void GraphPainter::paintStrongEdge(QPainter &painter, const GraphEdge &edge, const QColor &colour,
                                   Qt::PenStyle style) const
{
    const double pixel = 1 / std::abs(painter.worldTransform().m11());
    const QPainterPath path = edgePath(m_drawing, edge);
    painter.setPen(QPen(colour, std::max(2.2, 1.6 * pixel), style, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    paintArrow(painter, path, std::max(9.0, 6 * pixel));
}

void GraphPainter::paintFocus(QPainter &painter, int node) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double pixel = 1 / std::abs(painter.worldTransform().m11());
    const double away = std::max(6.0, 4 * pixel);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_look.strongOut, std::max(2.0, 2 * pixel)));
    painter.drawRoundedRect(roomOf(m_drawing.nodes.at(node)).adjusted(-away, -away, away, away),
                            away, away);
    painter.restore();
}
