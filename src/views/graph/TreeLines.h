#pragma once

#include "views/graph/ReferenceTree.h"

#include <QStringList>

struct Variables;

// A tree as text, a line for each node with what follows from it below, separated by tabs: its
// depth, its number, its status in words and, unless all that follows is there, why it is not.
QStringList treeLines(const QList<TreeNode> &tree, const Variables &variables);
