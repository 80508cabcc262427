#pragma once

#include "views/graph/GraphDrawing.h"

struct Variables;

// Sets what all nodes are: status, fixed, current. Their numbers are 0..2000.
void describeNodes(GraphDrawing &drawing, const Variables &variables);

QRectF roomOf(const GraphNode &node);

// The index of the node at a point, or -1.
int nodeAt(const GraphDrawing &drawing, const QPointF &point);

// The node of a number that is not shown elsewhere; -1 when there is none.
int nodeOf(const GraphDrawing &drawing, int number);

// The one that a node of another picture has become: of its number, shown elsewhere as it was or
// else not, and near its place; -1 when there is none.
int nodeLike(const GraphDrawing &drawing, const GraphNode &node);

// The one whose place is nearest to a point; -1 when there is none at all.
int nodeNearest(const GraphDrawing &drawing, const QPointF &point);

// In French, as legends name it; empty for Whole.
QString kindName(GraphNode::Kind kind);

// What a node is, in French and in one line: "12 : Tapé, Fixe, déjà montré ailleurs".
QString nodeTip(const GraphNode &node);

// A step of the keyboard from one node to another.
enum class GraphStep : quint8 {
    Upstream,   // towards what leads here
    Downstream, // towards where this leads
    Before,     // to the next of the same layer, upwards or to the left
    After,
};

// Where the step leads; the same node when it leads nowhere. Up and down the stream it keeps to the
// references, those to the next layer before others, and then to what is nearest across.
int neighbour(const GraphDrawing &drawing, int node, GraphStep step);
