#include "views/graph/ReferenceTree.h"

#include "store/references/ReferenceWeb.h"

namespace
{
using Kind = GraphNode::Kind;

ParagraphArray<bool, 2001> marked(const QList<int> &numbers)
{
    ParagraphArray<bool, 2001> marks;
    for (const int n : numbers)
        marks.at(n) = true;
    return marks;
}

void addChildren(QList<TreeNode> &tree, qsizetype parent, const QList<int> &numbers)
{
    TreeNode &node = tree[parent];
    node.firstChild = static_cast<int>(tree.size());
    node.children = static_cast<int>(numbers.size());
    const int depth = node.depth + 1;
    for (const int n : numbers)
        tree.append({n, depth, static_cast<int>(parent)}); // from here on node is no more
}
} // namespace

QList<TreeNode> referenceTree(const ReferenceWeb &web, const TreeRequest &request)
{
    const auto &following = request.way == TreeRequest::Way::Forward ? web.outgoing : web.incoming;
    const ParagraphArray<bool, 2001> stops = marked(request.stops);
    ParagraphArray<bool, 2001> shown;
    QList<TreeNode> tree{{request.start, 0, -1}};
    for (qsizetype i = 0; i < tree.size(); ++i) {
        const int n = tree.at(i).number;
        const QList<int> &next = following.at(n);
        if (shown.at(n)) {
            tree[i].kind = Kind::Shown;
            continue;
        }
        shown.at(n) = true;
        if (stops.at(n) && i > 0)
            tree[i].kind = Kind::Stopped;
        else if (tree.at(i).depth < request.depth && tree.size() < TreeRequest::MostNodes)
            addChildren(tree, i, next);
        else if (!next.isEmpty())
            tree[i].kind = Kind::Cut;
    }
    return tree;
}
