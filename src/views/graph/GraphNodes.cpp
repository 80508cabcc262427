#include "views/graph/GraphNodes.h"

#include "views/ParagraphStatuses.h"
#include "views/grid/GridCell.h"

#include <QCoreApplication>
#include <cmath>
#include <limits>
#include <tuple>

namespace
{
constexpr double FarAway = 1e9; // more than any picture is high

// Of those offered, the one with the least cost; the first one offered when nothing else is.
class Nearest
{
public:
    explicit Nearest(int otherwise) : m_node(otherwise) {}
    void offer(int node, double cost)
    {
        if (cost < m_cost)
            std::tie(m_node, m_cost) = {node, cost};
    }
    int node() const { return m_node; }

private:
    int m_node;
    double m_cost = std::numeric_limits<double>::infinity();
};

double distance(const QPointF &one, const QPointF &other)
{
    return std::hypot(one.x() - other.x(), one.y() - other.y());
}

bool isShownElsewhere(const GraphNode &node)
{
    return node.kind == GraphNode::Kind::Shown;
}

double height(const GraphDrawing &drawing, int node)
{
    return drawing.nodes.at(node).centre.y();
}

// A layer of several columns is gone through row by row.
int besideOf(const GraphDrawing &drawing, int node, int sign)
{
    constexpr double rowsBeforeColumns = 1e6; // more than any layer is wide
    const auto place = [&](int i) {
        const QPointF &centre = drawing.nodes.at(i).centre;
        return centre.y() * rowsBeforeColumns + centre.x();
    };
    Nearest nearest(node);
    for (int i = 0; i < drawing.nodes.size(); ++i) {
        const double distance = sign * (place(i) - place(node));
        if (drawing.nodes.at(i).layer == drawing.nodes.at(node).layer && distance > 0)
            nearest.offer(i, distance);
    }
    return nearest.node();
}

int alongOf(const GraphDrawing &drawing, int node, int sign)
{
    Nearest nearest(node);
    const int layer = drawing.nodes.at(node).layer;
    for (const GraphEdge &edge : drawing.edges) {
        if (edge.from != node && edge.to != node)
            continue;
        const int other = edge.from == node ? edge.to : edge.from;
        const int layers = sign * (drawing.nodes.at(other).layer - layer);
        if (layers > 0)
            nearest.offer(other, (layers - 1) * FarAway +
                                     std::abs(height(drawing, other) - height(drawing, node)));
    }
    return nearest.node();
}
} // namespace

void describeNodes(GraphDrawing &drawing, const Variables &variables)
{
    const ParagraphStatuses statuses = classifyParagraphs(variables);
    for (GraphNode &node : drawing.nodes) {
        node.status = statuses.status.at(node.number);
        node.fixed = variables.Unmixable.at(node.number) == 1;
        node.current = node.number == variables.CurrentParagraph;
    }
}

QRectF roomOf(const GraphNode &node)
{
    QRectF room(0, 0, GraphSize::NodeWidth, GraphSize::NodeHeight);
    room.moveCenter(node.centre);
    return room;
}

int nodeAt(const GraphDrawing &drawing, const QPointF &point)
{
    for (int i = 0; i < drawing.nodes.size(); ++i)
        if (roomOf(drawing.nodes.at(i)).contains(point))
            return i;
    return -1;
}

int nodeOf(const GraphDrawing &drawing, int number)
{
    for (int i = 0; i < drawing.nodes.size(); ++i)
        if (drawing.nodes.at(i).number == number && !isShownElsewhere(drawing.nodes.at(i)))
            return i;
    return -1;
}

int nodeLike(const GraphDrawing &drawing, const GraphNode &node)
{
    Nearest nearest(-1);
    for (int i = 0; i < drawing.nodes.size(); ++i) {
        const GraphNode &other = drawing.nodes.at(i);
        const bool alike = isShownElsewhere(other) == isShownElsewhere(node);
        if (other.number == node.number)
            nearest.offer(i, distance(other.centre, node.centre) + (alike ? 0 : FarAway));
    }
    return nearest.node();
}

int nodeNearest(const GraphDrawing &drawing, const QPointF &point)
{
    Nearest nearest(-1);
    for (int i = 0; i < drawing.nodes.size(); ++i)
        nearest.offer(i, distance(drawing.nodes.at(i).centre, point));
    return nearest.node();
}

QString kindName(GraphNode::Kind kind)
{
    switch (kind) {
    case GraphNode::Kind::Shown:
        return QCoreApplication::translate("GraphNodes", "déjà montré ailleurs");
    case GraphNode::Kind::Stopped:
        return QCoreApplication::translate("GraphNodes", "point d'arrêt");
    case GraphNode::Kind::Cut:
        return QCoreApplication::translate("GraphNodes", "suite non montrée");
    default:
        return {};
    }
}

QString nodeTip(const GraphNode &node)
{
    const QString words = cellWords({node.number, node.status, node.fixed, node.current});
    return node.kind == GraphNode::Kind::Whole ? words
                                               : words + QStringLiteral(", ") + kindName(node.kind);
}

int neighbour(const GraphDrawing &drawing, int node, GraphStep step)
{
    switch (step) {
    case GraphStep::Upstream:
        return alongOf(drawing, node, -1);
    case GraphStep::Downstream:
        return alongOf(drawing, node, 1);
    case GraphStep::Before:
        return besideOf(drawing, node, -1);
    default:
        return besideOf(drawing, node, 1);
    }
}
