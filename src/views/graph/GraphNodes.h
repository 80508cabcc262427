#pragma once

#include "views/graph/GraphDrawing.h"

struct Variables;

// Sets what all nodes are: status, fixed, current. Their numbers are 0..2000.
void describeNodes(GraphDrawing &drawing, const Variables &variables);

QRectF roomOf(const GraphNode &node);

// The index of the node at a point, or -1.
int nodeAt(const GraphDrawing &drawing, const QPointF &point);

// The node of a number; of several the one whose place in the picture is nearest to a point. -1
// when there is none.
int nodeOf(const GraphDrawing &drawing, int number, const QPointF &nearTo);

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
