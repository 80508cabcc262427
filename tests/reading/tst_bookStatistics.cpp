#include "check/BookWays.h"
#include "reading/BookPaths.h"
#include "reading/StatisticsText.h"
#include "richtext/WordCount.h"
#include "support/References.h"
#include "support/TestTable.h"

#include <QRandomGenerator>
#include <algorithm>

namespace
{
// Which paragraphs can be come to when one is torn out, and in how many steps: 0 is never.
QList<int> steps(const BookWays &ways, int torn)
{
    QList<int> steps(ParagraphSet::count());
    for (const int start : ways.starts)
        steps[start] = start == torn ? 0 : 1;
    for (bool changed = true; changed;) {
        changed = false;
        for (int from = 1; from < steps.size(); ++from)
            for (const int to : ways.web.outgoing.at(from))
                if (steps.at(from) != 0 && to != torn &&
                    (steps.at(to) == 0 || steps.at(to) > steps.at(from) + 1)) {
                    steps[to] = steps.at(from) + 1;
                    changed = true;
                }
    }
    return steps;
}

bool leads(const BookWays &ways, const QList<int> &way)
{
    for (qsizetype i = 1; i < way.size(); ++i)
        if (!ways.web.outgoing.at(way.at(i - 1)).contains(way.at(i)))
            return false;
    return way.isEmpty() || ways.starts.contains(way.first());
}
} // namespace

class tst_bookStatistics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pathsAreThoseOfASlowModel()
    {
        for (quint32 seed = 1; seed <= 200; ++seed) {
            constexpr int count = 14;
            const Variables variables = randomBook(seed, count);
            const BookWays ways(variables);
            const BookPaths paths(ways);
            const QList<int> whole = steps(ways, 0);
            QMap<int, QList<int>> passages;
            for (int torn = 1; torn <= count; ++torn) {
                const QList<int> without = steps(ways, torn);
                for (int n = 1; n <= count; ++n)
                    if (n != torn && whole.at(n) != 0 && without.at(n) == 0)
                        passages[n].append(torn);
            }
            for (int n = 1; n <= count; ++n) {
                const QList<int> way = paths.wayTo(n);
                QCOMPARE(int(way.size()), whole.at(n));
                QVERIFY(leads(ways, way));
                QList<int> met = way; // the passages are in the order of any way
                met.removeIf([&](int m) { return !passages.value(n).contains(m); });
                QCOMPARE(paths.passagesTo(n), met);
                QCOMPARE(met.size(), passages.value(n).size());
            }
        }
    }

    void wordsAndSigns_data()
    {
        addTable<QString, int, int>(
            {"text", "words", "signs"},
            {{"none", "", 0, 0},
             {"hyphen joins", "peut-être - là", 2, 14},
             {"apostrophe parts", "l'épée, l’or", 4, 12},
             {"lines", "Va\r\nau 12.\n", 3, 8},
             {"accent alone, beyond the plane", "e\u0301\U0001F600", 1, 2}});
    }
    void wordsAndSigns()
    {
        QFETCH(QString, text);
        QTEST(countWords(text), "words");
        QTEST(countSigns(text), "signs");
    }

    // Starts at 3, as 1 is empty.
    void theBookInNumbers()
    {
        const Variables variables = referring("3: 5 5 9\n5: 8\n7: 8\n8:\n12:");
        TextSizes sizes;
        sizes.words.at(5) = 40;
        sizes.words.at(3) = 40;
        sizes.signs.at(3) = 200;
        const BookWays ways(variables);
        const BookStatistics book = bookStatistics(variables, ways, sizes);
        QCOMPARE(book.starts, QList<int>{3});
        QCOMPARE(QList<int>({book.words, book.signs, book.choices, book.reached}),
                 QList<int>({80, 200, 5, 3}));
        QCOMPARE(QList<int>({book.span().longest, book.span().shortest}), QList<int>({3, 7}));
        QCOMPARE(book.endings,
                 (QList<BookStatistics::Ending>{{8, {3, 5, 8}, {3, 5}}, {12, {}, {}}}));
        const RandomReadings readings = randomReadings(variables, ways, 100, 1);
        QCOMPARE(neverMet(book, readings), QList<int>({7, 12}));
        const QStringList lines =
            statisticsLines(book, readings, [](int n) { return QString("[%1]").arg(n); });
        QVERIFY(lines.contains("Paragraphes : 5, dont 3 qu'une lecture peut atteindre"));
        QVERIFY(lines.contains("Mots : 80, soit 16,0 par paragraphe"));
        QVERIFY(lines.contains("Jamais rencontrés (2) : 7, 12"));
        QVERIFY(
            lines.filter(QRegularExpression("^8\t[0-9,]+ %\t3\t3, 5, 8\t3, 5\t\\[8\\]$")).size() ==
            1);
        QVERIFY(lines.contains("7\t0\t0\t1\t0\t[7]"));
        QVERIFY(lines.filter("%1").isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_bookStatistics)
#include "tst_bookStatistics.moc"
