#include "store/Variables.h"
#include "store/references/ReferenceWeb.h"
#include "support/References.h"
#include "support/TestTable.h"
#include "views/graph/BookLayout.h"
#include "views/graph/GraphNodes.h"
#include "views/graph/LayerOrder.h"

#include <QRandomGenerator>
#include <QTest>
#include <numeric>

namespace
{
// "1/2 3" are two layers.
QString described(const Layers &layers)
{
    QStringList texts;
    for (const QList<int> &layer : layers) {
        QStringList numbers;
        for (const int n : layer)
            numbers.append(QString::number(n));
        texts.append(numbers.join(u' '));
    }
    return texts.join(u'/');
}

// Every second pair of links, without any cleverness.
qint64 crossingsOneByOne(const Layers &layers, const ReferenceWeb &web)
{
    qint64 crossings = 0;
    for (int i = 0; i + 1 < layers.size(); ++i) {
        QList<QPair<qsizetype, qsizetype>> ends;
        for (const int a : layers.at(i)) {
            for (const int b : layers.at(i + 1)) {
                const auto count = web.outgoing.at(a).count(b) + web.outgoing.at(b).count(a);
                for (int link = 0; link < count; ++link)
                    ends.append({layers.at(i).indexOf(a), layers.at(i + 1).indexOf(b)});
            }
        }
        for (const auto &[a, b] : ends) {
            for (const auto &[c, d] : ends)
                crossings += a < c && b > d ? 1 : 0;
        }
    }
    return crossings;
}

// Reached in part; some references lead to numbers that are not written.
Variables randomBook(quint32 seed)
{
    QRandomGenerator random(seed);
    const int count = 1 + random.bounded(400);
    const int reach = 1 + random.bounded(60);
    Variables variables;
    for (int n = 1; n <= count; ++n) {
        variables.Written.at(n) = 1;
        for (int link = random.bounded(4); link > 0; --link)
            refer(variables, n, std::max(1, n + 6 - random.bounded(reach)));
    }
    RecomputeWrittenRange(variables);
    return variables;
}
} // namespace

class tst_bookLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layersAreDistances_data()
    {
        addTable<QString, int, QString, QString>(
            {"book", "start", "reached", "apart"},
            {{"by the shortest way", "1: 2 3\n2: 4\n3: 4 5\n4: 1 5", 1, "1/2 3/4 5", ""},
             {"what leads there is apart", "1: 2\n2: 3\n7: 2\n8: 7", 2, "2/3", "1 8/7"},
             {"circles begin at their lowest", "1:\n5: 6\n6: 5\n9: 9", 1, "1", "9 5/6"},
             {"a start that is no paragraph", "1: 2", 40, "", "1/2"}});
    }
    void layersAreDistances()
    {
        QFETCH(QString, book);
        QFETCH(int, start);
        const Variables variables = referring(book);
        QList<int> paragraphs;
        const ReferenceWeb web(variables);
        for (int n = 0; n <= Variables::LastParagraph; ++n) {
            if (variables.Written.at(n) == 1 || !web.incoming.at(n).isEmpty())
                paragraphs.append(n);
        }
        const BookLayers layers = bookLayers(web, paragraphs, start);
        QTEST(described(layers.reached), "reached");
        QTEST(described(layers.apart), "apart");
    }

    void orderSparesCrossings()
    {
        for (quint32 seed = 1; seed <= 30; ++seed) {
            const ReferenceWeb web(randomBook(seed));
            QList<int> all(Variables::LastParagraph);
            std::iota(all.begin(), all.end(), 1);
            Layers layers = bookLayers(web, all, 1).reached;
            const qint64 before = crossingsOneByOne(layers, web);
            QCOMPARE(countCrossings(layers, web), before);
            reduceCrossings(layers, web);
            QCOMPARE(countCrossings(layers, web), crossingsOneByOne(layers, web));
            QVERIFY(countCrossings(layers, web) <= before);
        }
        const ReferenceWeb crossed(referring("1: 2 3 4\n2: 7\n3: 6\n4: 5"));
        Layers layers{{1}, {2, 3, 4}, {5, 6, 7}};
        reduceCrossings(layers, crossed);
        QCOMPARE(countCrossings(layers, crossed), 0);
    }

    void everyParagraphStandsOnceAndFree()
    {
        for (quint32 seed = 1; seed <= 30; ++seed) {
            const Variables variables = randomBook(seed);
            const ReferenceWeb web(variables);
            const GraphDrawing drawing = layOutBook(variables, web, 1);
            ParagraphArray<int, 2001> times;
            for (const GraphNode &node : drawing.nodes) {
                ++times.at(node.number);
                QVERIFY(drawing.bounds.contains(roomOf(node)));
                for (const GraphNode &other : drawing.nodes)
                    QVERIFY(&node == &other || !roomOf(node).intersects(roomOf(other)));
            }
            qsizetype links = 0;
            for (int n = 0; n < times.count(); ++n) {
                const bool there = variables.Written.at(n) == 1 || !web.incoming.at(n).isEmpty();
                QCOMPARE(times.at(n), there ? 1 : 0);
                links += web.outgoing.at(n).size();
            }
            QCOMPARE(drawing.edges.size(), links);
        }
    }
};

QTEST_GUILESS_MAIN(tst_bookLayout)
#include "tst_bookLayout.moc"
