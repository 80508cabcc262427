#include "reading/ReadMarks.h"
#include "reading/ReadingWay.h"
#include "reading/ShortestWay.h"
#include "store/AdventureChanges.h"
#include "store/references/ReferenceWeb.h"
#include "support/AdventureBuilder.h"

#include <QTest>

namespace
{
// "1 2 [3] 4": where he is stands in brackets.
QString shown(const ReadingWay &way)
{
    QStringList steps;
    for (const int n : way.steps())
        steps.append(QString::number(n));
    if (!steps.isEmpty())
        steps[way.at()] = u'[' + steps.at(way.at()) + u']';
    return steps.join(u' ');
}
} // namespace

class tst_readingWay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void waysThatAreLeftComeBack()
    {
        ReadingWay way;
        QVERIFY(!way.current() && !way.canRestore());
        way.come({1});
        for (const int n : {2, 3, 4})
            way.goOn({n});
        way.returnTo(1);
        QCOMPARE(shown(way), "1 [2] 3 4");
        way.goOn({3});
        QCOMPARE(shown(way), "1 2 [3] 4");
        way.restore();
        QCOMPARE(shown(way), "1 2 3 [4]");
        QVERIFY(!way.canRestore());
        way.returnTo(0);
        way.goOn({9, 8});
        QCOMPARE(shown(way), "1 9 [8]");
        way.restore();
        QCOMPARE(shown(way), "1 2 3 [4]");
        way.restore(); // they come in turn
        QCOMPARE(shown(way), "1 9 [8]");
        way.come({1});
        way.goOn({2}); // the turning of the way that was left
        QCOMPARE(shown(way), "1 [2] 3 4");
        way.come({7});
        QCOMPARE(shown(way), "[7]");
        NumberMap newNumbers = unmovedNumbers();
        newNumbers.at(7) = 3;
        newNumbers.at(3) = 7;
        way.follow(newNumbers);
        QCOMPARE(shown(way), "[3]");
        way.restore();
        QCOMPARE(shown(way), "1 2 7 [4]");
    }

    void onlySoManyWaysAreKept()
    {
        ReadingWay way;
        for (int n = 1; n <= ReadingWay::MostKept + 10; ++n)
            way.come({n, n});
        for (qsizetype i = 0; i < ReadingWay::MostKept; ++i)
            way.restore();
        QCOMPARE(way.steps(), QList<int>({10, 10}));
    }

    void theWayToTheNearestIsShort()
    {
        Variables variables;
        variables.HighestWritten = 2000;
        for (int n = 1; n <= 2000; ++n) { // a ring, with a shorter way from 1000 to 2000
            variables.Written.at(n) = 1;
            variables.refIndex.at(n) = fourDigits(n % 2000 + 1) + u'/';
        }
        variables.refIndex.at(1000) += "2000/";
        const ReferenceWeb web(variables);
        ParagraphSet wanted;
        QVERIFY(shortestWay(web, 1, wanted).isEmpty());
        wanted.at(1) = true; // where he is already
        QVERIFY(shortestWay(web, 1, wanted).isEmpty());
        QCOMPARE(shortestWay(web, 2, wanted).size(), 1000);
        wanted.at(1999) = wanted.at(3) = true;
        QCOMPARE(shortestWay(web, 1, wanted), QList<int>({2, 3}));
        QCOMPARE(shortestWay(web, 2000, wanted), QList<int>({1}));
    }

    void whatIsReadIsWrittenIntoTheAdventure()
    {
        TestAdventure adventure;
        Variables &variables = adventure.variables;
        variables.Written.at(1) = variables.Written.at(2) = variables.Written.at(3) = 1;
        ReadMarks marks(variables);
        marks.noteRead(1);
        marks.noteRead(2);
        marks.noteRead(2);
        marks.noteChoices({1, 2});
        QVERIFY(!variables.AdventureModified);
        Q_EMIT variables.Events->extrasChanged(); // somebody else has changed something else
        QCOMPARE(marks.readCount(), 2);
        NumberMap newNumbers = unmovedNumbers();
        newNumbers.at(2) = 3;
        newNumbers.at(3) = 2;
        Q_EMIT variables.Events->numbersChanged(newNumbers);
        marks.keep();
        QVERIFY(variables.AdventureModified);
        QCOMPARE(variables.extras.reading.read, QList<int>({1, 3}));
        QVERIFY(variables.extras.reading.taken == QList<ReadingMarks::Choice>({{1, 3}}));
        QVERIFY(marks.takenFrom(1).at(3) && !marks.takenFrom(1).at(2) && !marks.takenFrom(2).at(3));
        QVERIFY(marks.unread().at(2) && !marks.unread().at(3) && !marks.unread().at(4));
        marks.setBookmarks({{"Ici", {1, 3}}});
        marks.noteRead(2);
        marks.forget();
        QCOMPARE(marks.readCount(), 0);
        QCOMPARE(marks.bookmarks().size(), 1);
        marks.noteRead(2); // nothing of another adventure
        variables.extras = {};
        Q_EMIT variables.Events->adventureReplaced();
        marks.keep();
        QVERIFY(variables.extras == AdventureExtras());
    }
};

QTEST_GUILESS_MAIN(tst_readingWay)
#include "tst_readingWay.moc"
