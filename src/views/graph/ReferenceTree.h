#pragma once

#include "views/graph/GraphDrawing.h"

#include <QList>

struct ReferenceWeb;

// What an author asks of a tree of references.
struct TreeRequest {
    enum class Way : quint8 {
        Forward,  // where the start leads
        Backward, // what leads to it
    };
    static constexpr int MostDepth = 25;
    // Three times what the largest book needs: there nothing more is followed, as at the depth.
    static constexpr qsizetype MostNodes = 100'000;

    int start = 1; // 0..2000
    Way way = Way::Forward;
    int depth = MostDepth; // 1..25: how many references away from the start
    QList<int> stops;      // nothing is followed from these, unless the tree starts there
};

struct TreeNode {
    int number;
    int depth;
    int parent; // its index; -1 for the start
    int firstChild = 0;
    int children = 0;
    GraphNode::Kind kind = GraphNode::Kind::Whole;
};

// The start and what it leads to, or what leads to it. A paragraph is followed where it is nearest
// to the start; wherever else it occurs it is a leaf, so that there are at most as many nodes as
// references, and one. Ordered by depth, so that parents stand before their children and children
// of one parent together, in the order of ReferenceWeb.
QList<TreeNode> referenceTree(const ReferenceWeb &web, const TreeRequest &request);
