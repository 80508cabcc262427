#include "editor/ParagraphSearch.h"

#include <QTest>

class tst_paragraphSearch : public QObject
{
    Q_OBJECT

    static Variables written(const QList<int> &numbers)
    {
        Variables v;
        for (const int n : numbers)
            v.Written.at(static_cast<std::size_t>(n)) = 1;
        v.LowestWritten = static_cast<qint16>(numbers.first());
        v.HighestWritten = static_cast<qint16>(numbers.last());
        return v;
    }

private Q_SLOTS:
    void findsTypedAndEmptyParagraphs_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<std::optional<int>>("nextTypedNumber");
        QTest::addColumn<std::optional<int>>("previousTypedNumber");
        QTest::addColumn<std::optional<int>>("nextEmptyNumber");
        QTest::addColumn<std::optional<int>>("previousEmptyNumber");
        const std::optional<int> none;
        using Number = std::optional<int>;
        QTest::newRow("lowest") << 0 << Number(4) << none << Number(1) << none;
        QTest::newRow("inside") << 5 << Number(2000) << Number(4) << Number(6) << Number(3);
        QTest::newRow("highest") << 2000 << none << Number(5) << none << Number(1999);
        QTest::newRow("beside") << 1 << Number(4) << Number(0) << Number(2) << none;
    }
    void findsTypedAndEmptyParagraphs()
    {
        const Variables v = written({0, 4, 5, 2000});
        QFETCH(int, from);
        QTEST(nextTyped(v, from), "nextTypedNumber");
        QTEST(previousTyped(v, from), "previousTypedNumber");
        QTEST(nextEmpty(v, from), "nextEmptyNumber");
        QTEST(previousEmpty(v, from), "previousEmptyNumber");
    }

    void firstFreeSkipsWrittenAndReferredNumbers_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("free");
        QTest::newRow("from the start") << 0 << 3;
        QTest::newRow("behind the referred 5") << 4 << 6;
        QTest::newRow("wraps to 1 and never to 0") << 1999 << 3;
        QTest::newRow("from itself") << 3 << 6;
    }
    void firstFreeSkipsWrittenAndReferredNumbers()
    {
        Variables v = written({1, 2, 4, 2000});
        v.refIndex[1] = QStringLiteral("0005/0002/");
        v.refIndex[3] = QStringLiteral("0006/"); // of a paragraph that is not written: no matter
        QFETCH(int, from);
        const std::optional<int> found = firstFree(v, from);
        QVERIFY(found.has_value());
        QTEST(*found, "free");
    }

    void firstFreeEndsAfterOneRound()
    {
        QList<int> all;
        for (int n = 1; n <= 2000; ++n)
            all.append(n);
        Variables v = written(all);
        QVERIFY(!firstFree(v, 0).has_value());
        QVERIFY(!firstFree(v, 1200).has_value());
        v.Written[1200] = 0;
        QCOMPARE(firstFree(v, 1200), std::optional<int>(1200));
    }

    void countLeavesOutParagraphZero()
    {
        QCOMPARE(countWritten(written({0, 1, 2})), 2);
        QCOMPARE(countWritten(Variables()), 0);
    }
};

QTEST_APPLESS_MAIN(tst_paragraphSearch)
#include "tst_paragraphSearch.moc"
