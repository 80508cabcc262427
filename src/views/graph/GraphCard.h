#pragma once

#include "views/graph/GraphDrawing.h"

#include <QFont>

class QPainter;
struct GraphLook;

// One node as a card: a band with the colour and the letter of its status, its number, and marks.
void paintCard(QPainter &painter, const GraphNode &node, const GraphLook &look);

// The same where there is no room for a number: its colour alone.
void paintDot(QPainter &painter, const GraphNode &node, const GraphLook &look);

// The mark of a kind in a square of this side around a point; none for Whole.
void paintKindMark(QPainter &painter, GraphNode::Kind kind, const QPointF &centre, double side,
                   const GraphLook &look);

// The font of the numbers, in the units of the picture.
QFont graphFont(double pixels);
