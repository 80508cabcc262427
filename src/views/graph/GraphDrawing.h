#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

// A picture of paragraphs and the references between them, laid out: what the layouts make, and
// what the canvas shows, the painter paints and a file holds. Lengths are pixels at 100 percent.

struct GraphNode {
    enum class Kind : quint8 {
        Whole,   // all that follows from it is in the picture
        Shown,   // the paragraph stands, with what follows, elsewhere in the picture
        Stopped, // the author wants the picture to stop here
        Cut,     // the picture has reached its depth, and more follows
    };

    int number = 0;
    int layer = 0; // 0.. from left to right
    QPointF centre;
    Kind kind = Kind::Whole;
    quint8 status = 0; // see ParagraphStatus
    bool fixed = false;
    bool current = false; // it is the one in the editing box

    bool operator==(const GraphNode &) const = default;
};

// A reference, or several that are alike: the text of the paragraph at from names the one at to.
// Both are indexes of nodes; they are the same where a paragraph refers to itself.
struct GraphEdge {
    int from = 0;
    int to = 0;

    bool operator==(const GraphEdge &) const = default;
};

// A caption of a part of the picture, such as a layer.
struct GraphLabel {
    QString text;
    QRectF room; // the text stands in the middle of it

    bool operator==(const GraphLabel &) const = default;
};

struct GraphDrawing {
    QList<GraphNode> nodes;
    QList<GraphEdge> edges;
    QList<GraphLabel> labels;
    QRectF bounds; // holds all nodes and labels, with a margin

    bool operator==(const GraphDrawing &) const = default;
};

namespace GraphSize
{
constexpr double NodeWidth = 60.0;
constexpr double NodeHeight = 22.0;
constexpr double Margin = 24.0; // around the whole picture
} // namespace GraphSize
