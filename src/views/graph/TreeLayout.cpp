#include "views/graph/TreeLayout.h"

#include <algorithm>
#include <vector>

namespace
{
constexpr double LeastColumnPitch = GraphSize::NodeWidth + 76.0;
constexpr double MostColumnPitch = GraphSize::NodeWidth + 246.0;
constexpr double SiblingPitch = GraphSize::NodeHeight + 6.0;
constexpr double StrangerPitch = GraphSize::NodeHeight + 14.0; // of children of two parents

// Places nodes across the columns. Positions of a subtree are relative to its parent until the end:
// a node stands at its own place plus the shifts of all above it.
class Across
{
public:
    explicit Across(const QList<TreeNode> &tree);
    std::vector<double> places();

private:
    struct Place {
        double own = 0;
        double shift = 0;  // of what is below it
        double middle = 0; // of its children
        double moved = 0;  // not yet spread over the siblings before it
        double change = 0;
        int ancestor = 0;
        int thread = -1; // the next on the contour, where it goes on in another subtree
    };

    Place &at(int node) { return m_places[static_cast<std::size_t>(node)]; }
    const TreeNode &node(int index) const { return m_tree.at(index); }
    int sibling(int index) const { return index - node(node(index).parent).firstChild; }
    int upperNext(int index)
    {
        return node(index).children > 0 ? firstOf(index) : at(index).thread;
    }
    int lowerNext(int index) { return node(index).children > 0 ? lastOf(index) : at(index).thread; }
    int firstOf(int index) const { return node(index).firstChild; }
    int lastOf(int index) const { return firstOf(index) + node(index).children - 1; }

    void placeChildren(int parent);
    int keepApart(int child, int ancestor);
    void moveSubtree(int from, int to, double distance);
    void spread(int parent);

    const QList<TreeNode> &m_tree;
    std::vector<Place> m_places;
};

Across::Across(const QList<TreeNode> &tree)
    : m_tree(tree), m_places(static_cast<std::size_t>(tree.size()))
{
    for (int i = 0; i < tree.size(); ++i)
        at(i).ancestor = i;
}

// Children stand behind their parents: from behind, every subtree is placed in itself before it is
// placed among its siblings, and no recursion is needed however deep the tree is.
std::vector<double> Across::places()
{
    const int count = static_cast<int>(m_tree.size());
    for (int i = count - 1; i >= 0; --i)
        if (node(i).children > 0)
            placeChildren(i);
    std::vector<double> places(m_places.size());
    std::vector<double> above(m_places.size());
    for (int i = 0; i < count; ++i) {
        const std::size_t index = static_cast<std::size_t>(i);
        const int parent = node(i).parent;
        if (parent >= 0)
            above[index] = above[static_cast<std::size_t>(parent)] + at(parent).shift;
        places[index] = at(i).own + above[index];
    }
    return places;
}

void Across::placeChildren(int parent)
{
    int ancestor = firstOf(parent);
    for (int child = firstOf(parent); child <= lastOf(parent); ++child) {
        Place &place = at(child);
        const bool first = child == firstOf(parent);
        place.own = first ? place.middle : at(child - 1).own + SiblingPitch;
        place.shift = place.own - place.middle;
        if (!first)
            ancestor = keepApart(child, ancestor);
    }
    spread(parent);
    at(parent).middle = (at(firstOf(parent)).own + at(lastOf(parent)).own) / 2;
    at(parent).own = at(parent).middle;
}

// Walks along the lower contour of the siblings before and the upper one of the child's subtree,
// and moves the subtree down where they touch.
int Across::keepApart(int child, int ancestor)
{
    const int before = child - 1;
    int insideUpper = before, insideLower = child;
    int outsideUpper = firstOf(node(child).parent), outsideLower = child;
    double upperShift = at(insideUpper).shift, lowerShift = at(insideLower).shift;
    double outsideUpperShift = at(outsideUpper).shift, outsideLowerShift = at(outsideLower).shift;
    while (lowerNext(insideUpper) >= 0 && upperNext(insideLower) >= 0) {
        insideUpper = lowerNext(insideUpper);
        insideLower = upperNext(insideLower);
        outsideUpper = upperNext(outsideUpper);
        outsideLower = lowerNext(outsideLower);
        at(outsideLower).ancestor = child;
        const double overlap =
            at(insideUpper).own + upperShift + StrangerPitch - (at(insideLower).own + lowerShift);
        if (overlap > 0) {
            const int touched = at(insideUpper).ancestor;
            const bool isSibling = node(touched).parent == node(child).parent;
            moveSubtree(isSibling ? touched : ancestor, child, overlap);
            lowerShift += overlap;
            outsideLowerShift += overlap;
        }
        upperShift += at(insideUpper).shift;
        lowerShift += at(insideLower).shift;
        outsideUpperShift += at(outsideUpper).shift;
        outsideLowerShift += at(outsideLower).shift;
    }
    if (lowerNext(insideUpper) >= 0 && lowerNext(outsideLower) < 0) {
        at(outsideLower).thread = lowerNext(insideUpper);
        at(outsideLower).shift += upperShift - outsideLowerShift;
    }
    if (upperNext(insideLower) >= 0 && upperNext(outsideUpper) < 0) {
        at(outsideUpper).thread = upperNext(insideLower);
        at(outsideUpper).shift += lowerShift - outsideUpperShift;
        return child;
    }
    return ancestor;
}

void Across::moveSubtree(int from, int to, double distance)
{
    const double between = sibling(to) - sibling(from);
    at(to).change -= distance / between;
    at(from).change += distance / between;
    at(to).moved += distance;
    at(to).own += distance;
    at(to).shift += distance;
}

// What a subtree was moved is shared out over the smaller ones between it and the one it touched.
void Across::spread(int parent)
{
    double moved = 0;
    double change = 0;
    for (int child = lastOf(parent); child >= firstOf(parent); --child) {
        at(child).own += moved;
        at(child).shift += moved;
        change += at(child).change;
        moved += at(child).moved + change;
    }
}

// A high tree has room between its columns, so that curves to the highest and lowest children are
// told apart.
double columnPitch(const std::vector<double> &places, int columns)
{
    const auto [least, most] = std::minmax_element(places.begin(), places.end());
    return std::clamp((*most - *least) / std::max(columns, 1), LeastColumnPitch, MostColumnPitch);
}

QRectF boundsOf(const QList<GraphNode> &nodes)
{
    QRectF bounds;
    const QPointF half(GraphSize::NodeWidth / 2, GraphSize::NodeHeight / 2);
    for (const GraphNode &node : nodes)
        bounds |= QRectF(node.centre - half, node.centre + half);
    return bounds.marginsAdded(
        QMarginsF(GraphSize::Margin, GraphSize::Margin, GraphSize::Margin, GraphSize::Margin));
}
} // namespace

GraphDrawing layOutTree(const QList<TreeNode> &tree, TreeRequest::Way way)
{
    const bool forward = way == TreeRequest::Way::Forward;
    const std::vector<double> places = Across(tree).places();
    const int deepest = tree.last().depth;
    const double pitch = columnPitch(places, deepest);
    GraphDrawing drawing;
    drawing.nodes.reserve(tree.size());
    for (int i = 0; i < tree.size(); ++i) {
        const TreeNode &node = tree.at(i);
        GraphNode drawn;
        drawn.number = node.number;
        drawn.layer = forward ? node.depth : deepest - node.depth;
        drawn.centre = {drawn.layer * pitch, places.at(static_cast<std::size_t>(i))};
        drawn.kind = node.kind;
        drawing.nodes.append(drawn);
        if (node.parent >= 0)
            drawing.edges.append(forward ? GraphEdge{node.parent, i} : GraphEdge{i, node.parent});
    }
    drawing.bounds = boundsOf(drawing.nodes);
    return drawing;
}
