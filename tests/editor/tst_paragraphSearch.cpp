#include "editor/ParagraphSearch.h"

#include <QTest>
#include <algorithm>

namespace
{
Variables written(const QList<int> &numbers)
{
    Variables v;
    for (const int n : numbers)
        v.Written.at(n) = 1;
    v.LowestWritten = static_cast<qint16>(numbers.first());
    v.HighestWritten = static_cast<qint16>(numbers.last());
    return v;
}
} // namespace

class tst_paragraphSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTypedAndEmptyParagraphs()
    {
        using Number = std::optional<int>;
        struct Case {
            int from;
            Number nextTyped, previousTyped, nextEmpty, previousEmpty;
        };
        const Variables v = written({0, 4, 5, 2000});
        for (const Case &c : {Case{0, 4, {}, 1, {}}, Case{1, 4, 0, 2, {}}, Case{5, 2000, 4, 6, 3},
                              Case{2000, {}, 5, {}, 1999}}) {
            QCOMPARE(nextTyped(v, c.from), c.nextTyped);
            QCOMPARE(previousTyped(v, c.from), c.previousTyped);
            QCOMPARE(nextEmpty(v, c.from), c.nextEmpty);
            QCOMPARE(previousEmpty(v, c.from), c.previousEmpty);
        }
    }

    void firstFreeSkipsWrittenAndReferredNumbers()
    {
        Variables v = written({1, 2, 4, 2000});
        v.refIndex.at(1) = "0005/0002/";
        v.refIndex.at(3) = "0006/"; // of a paragraph that is not written: no matter
        // Behind the referred 5, never to itself, and around to 1 but not to 0.
        const std::pair<int, int> cases[] = {{0, 3}, {4, 6}, {3, 6}, {1999, 3}};
        for (const auto &[from, free] : cases)
            QCOMPARE(firstFree(v, from), std::optional(free));
    }

    void firstFreeEndsAfterOneRound()
    {
        Variables v = written({1, 2000});
        std::fill(v.Written.begin() + 1, v.Written.end() - 1, quint8(1));
        QVERIFY(!firstFree(v, 1200).has_value());
        v.Written.at(1200) = 0;
        QCOMPARE(firstFree(v, 1200), std::optional(1200));
    }

    void countLeavesOutParagraphZero() { QCOMPARE(countWritten(written({0, 1, 2})), 2); }
};

QTEST_APPLESS_MAIN(tst_paragraphSearch)
#include "tst_paragraphSearch.moc"
