#pragma once

#include "views/graph/GraphDrawing.h"
#include "views/graph/ReferenceTree.h"

// The picture of a tree of one node at least, from left to right as the references lead: a column
// for each depth, every parent in the middle beside its children, and subtrees as close together as
// they go without touching (after Buchheim, Jünger and Leipert, in linear time). What the nodes are
// besides their number and kind is left to describeNodes().
GraphDrawing layOutTree(const QList<TreeNode> &tree, TreeRequest::Way way);
