#include "store/ReferenceIndex.h"
#include "store/Variables.h"
#include "store/references/ReferenceWeb.h"
#include "support/References.h"
#include "support/TestTable.h"
#include "views/graph/GraphNodes.h"
#include "views/graph/ReferenceTree.h"
#include "views/graph/TreeLayout.h"

#include <QMap>
#include <QRandomGenerator>
#include <QTest>
#include <cmath>

namespace
{
using Way = TreeRequest::Way;

// "1(2 3(2=))": "=" is shown elsewhere, "!" a stop, "~" cut.
QString described(const QList<TreeNode> &tree, int at = 0)
{
    const TreeNode &node = tree.at(at);
    QString text = QString::number(node.number) + QString(" =!~").mid(int(node.kind), 1).trimmed();
    QStringList children;
    for (int i = 0; i < node.children; ++i)
        children.append(described(tree, node.firstChild + i));
    return children.isEmpty() ? text : text + u'(' + children.join(u' ') + u')';
}

// Each paragraph is referred to by an earlier one, and by some others.
QList<TreeNode> bigTree(quint32 seed, int nodes, int width, Way way)
{
    Variables variables;
    QRandomGenerator random(seed);
    for (int n = 2; n <= nodes; ++n) {
        refer(variables, std::max(1, n - 1 - int(random.bounded(width))), n);
        refer(variables, n, 1 + int(random.bounded(nodes)));
    }
    RecomputeWrittenRange(variables);
    return referenceTree(ReferenceWeb(variables), {1, way, TreeRequest::MostDepth, {}});
}
} // namespace

class tst_referenceTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsReferencesFromTheStart_data()
    {
        const char *book = "0: 1\n1: 2 3 2\n2: 4\n3: 2 5 3\n4: 1 6\n6: ";
        addTable<QString, TreeRequest, QString>(
            {"book", "request", "tree"},
            {{"shown where it is nearest",
              book,
              {1, Way::Forward, 25, {}},
              "1(2(4(1= 6)) 3(2= 5 3=))"},
             {"cut at the depth", book, {1, Way::Forward, 1, {}}, "1(2~ 3~)"},
             {"nothing is cut where nothing follows", book, {4, Way::Forward, 1, {}}, "4(1~ 6)"},
             {"stops", book, {1, Way::Forward, 25, {2, 5}}, "1(2! 3(2= 5! 3=))"},
             {"a start is no stop", book, {2, Way::Forward, 2, {2}}, "2(4(1~ 6))"},
             {"what leads there", book, {2, Way::Backward, 25, {}}, "2(1(0 4(2=)) 3(1= 3=))"},
             {"unwritten start", book, {5, Way::Forward, 25, {}}, "5"},
             {"what leads to an unwritten one", book, {5, Way::Backward, 1, {}}, "5(3~)"},
             {"damaged index", "1: 2 99999 0xyz\n2: 1", {1, Way::Forward, 25, {}}, "1(2(1=))"}});
    }
    void followsReferencesFromTheStart()
    {
        QFETCH(QString, book);
        QFETCH(TreeRequest, request);
        const Variables variables = referring(book);
        QTEST(described(referenceTree(ReferenceWeb(variables), request)), "tree");
    }

    // A book whose every paragraph names all others, as only a hostile one does.
    void aTreeHasBounds()
    {
        Variables variables;
        constexpr int paragraphs = 1000;
        for (int n = 1; n <= paragraphs; ++n) {
            variables.Written.at(n) = 1;
            for (int to = 1; to <= paragraphs; ++to)
                variables.refIndex.at(n) += fourDigits(to) + u'/';
        }
        RecomputeWrittenRange(variables);
        const QList<TreeNode> tree = referenceTree(ReferenceWeb(variables), {});
        QCOMPARE(tree.size(), TreeRequest::MostNodes + 1);
        QCOMPARE(tree.at(100).kind, GraphNode::Kind::Whole);
        QCOMPARE(tree.at(101).kind, GraphNode::Kind::Cut);
    }

    void layoutIsTidy()
    {
        for (quint32 seed = 1; seed <= 40; ++seed) {
            const Way way = seed % 2 == 0 ? Way::Forward : Way::Backward;
            const QList<TreeNode> tree = bigTree(seed, 20 + int(seed) * 49, int(seed) * 3, way);
            const GraphDrawing drawing = layOutTree(tree, way);
            QCOMPARE(drawing.nodes.size(), tree.size());
            QCOMPARE(drawing.edges.size(), tree.size() - 1);
            QMap<int, double> lastOf; // of the columns: nodes stand in the order of the tree
            for (int i = 0; i < tree.size(); ++i) {
                const GraphNode &node = drawing.nodes.at(i);
                QVERIFY(drawing.bounds.contains(roomOf(node)));
                if (lastOf.contains(node.layer))
                    QVERIFY(node.centre.y() > lastOf.value(node.layer) + GraphSize::NodeHeight);
                lastOf[node.layer] = node.centre.y();
                if (const int count = tree.at(i).children) {
                    const auto y = [&](int child) { return drawing.nodes.at(child).centre.y(); };
                    const int first = tree.at(i).firstChild;
                    QVERIFY(std::abs((y(first) + y(first + count - 1)) / 2 - y(i)) < 0.001);
                }
            }
            for (const GraphEdge &edge : drawing.edges)
                QCOMPARE(drawing.nodes.at(edge.to).layer, drawing.nodes.at(edge.from).layer + 1);
        }
    }

    void keysMoveAlongReferences()
    {
        const Variables variables = referring("1: 2 3\n2: 4 5\n3: 6");
        const GraphDrawing drawing = layOutTree(
            referenceTree(ReferenceWeb(variables), {1, Way::Forward, 25, {}}), Way::Forward);
        const auto step = [&](int number, GraphStep to) {
            return drawing.nodes.at(neighbour(drawing, nodeOf(drawing, number), to)).number;
        };
        QCOMPARE(step(1, GraphStep::Downstream), 2);
        QCOMPARE(step(2, GraphStep::After), 3);
        QCOMPARE(step(5, GraphStep::After), 6); // a cousin
        QCOMPARE(step(6, GraphStep::Upstream), 3);
        QCOMPARE(step(4, GraphStep::Before), 4);
        QCOMPARE(step(6, GraphStep::Downstream), 6);
    }
};

QTEST_GUILESS_MAIN(tst_referenceTree)
#include "tst_referenceTree.moc"
