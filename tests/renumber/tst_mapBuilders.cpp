#include "renumber/MapBuilders.h"
#include "support/TestTable.h"

#include <QRandomGenerator>
#include <QTest>
#include <set>

namespace
{
// Sets the marks of "3 5-8".
Marks marks(const QString &numbers)
{
    Marks marks{};
    const QStringList ranges = numbers.split(u' ', Qt::SkipEmptyParts);
    for (const QString &range : ranges) {
        const QStringList ends = range.split(u'-');
        for (int n = ends.first().toInt(); n <= ends.last().toInt(); ++n)
            marks.at(n) = 1;
    }
    return marks;
}

// "12>10 8>11": what a map moves.
QString moves(const RenumberMap &map)
{
    QStringList moves;
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        if (map.moves(n))
            moves.append(QStringLiteral("%1>%2").arg(n).arg(map.of(n)));
    return moves.join(u' ');
}

Marks randomMarks(QRandomGenerator &random, int percent)
{
    Marks marks{};
    for (quint8 &mark : marks)
        mark = random.bounded(100) < percent ? 1 : 0;
    return marks;
}

// Each number goes to another one; the fixed and those outside low..high stay, so that no fixed
// number receives one either.
bool isPermutation(const RenumberMap &map, int low, int high, const Marks &fixed)
{
    std::set<int> numbers;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        numbers.insert(map.of(n));
        if (map.moves(n) && (n < low || n > high || fixed.at(n) != 0))
            return false;
    }
    return numbers.size() == Variables::LastParagraph + 1 && *numbers.begin() == 0 &&
           *numbers.rbegin() == Variables::LastParagraph;
}
} // namespace

class tst_mapBuilders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void blockMove()
    {
        const Table<int, int, int, bool, QString, QString> rows{
            {"down, overlapping", 10, 12, 2, true, "", "8>11 9>12 10>8 11>9 12>10"},
            {"down, apart", 10, 11, 5, true, "", "5>10 6>11 10>5 11>6"},
            {"down, fixed on the way", 10, 12, 2, true, "9", "8>11 10>12 11>8 12>10"},
            {"down, fixed in the block", 10, 12, 2, true, "11", "8>12 9>8 10>9 12>10"},
            {"up, overlapping", 10, 12, 2, false, "", "10>12 11>13 12>14 13>10 14>11"},
            {"up, fixed on the way", 10, 12, 2, false, "13", "10>12 11>14 12>10 14>11"},
            {"all fixed", 10, 12, 2, true, "8-12", ""}};
        for (const auto &[name, low, high, delta, down, fixed, moved] : rows) {
            const auto towards = down ? Towards::Lower : Towards::Higher;
            QCOMPARE(moves(BlockMoveMap(low, high, delta, towards, marks(fixed))), moved);
        }
    }

    void packHoles()
    {
        const Table<int, int, QString, QString, QString> rows{
            {"holes", 1, 10, "1 2 5 9", "", "3>5 4>6 5>3 6>7 7>8 8>9 9>4"},
            {"fixed stepped over", 1, 10, "1 2 4 5 9", "4", "3>6 5>3 6>7 7>8 8>9 9>5"},
            {"holes at the end alone", 1, 10, "1-5", "", ""},
            {"no hole", 1, 10, "1-10", "", "none"},
            {"no hole before the fixed end", 1, 10, "1-10", "10", ""},
            {"nothing but fixed", 1, 10, "4 5", "4 5", "none"},
            {"to the last number", 1998, 2000, "2000", "1998", "1999>2000 2000>1999"}};
        for (const auto &[name, low, high, written, fixed, moved] : rows) {
            const auto map = PackHolesMap(low, high, marks(written), marks(fixed));
            QCOMPARE(map ? moves(*map) : "none", moved);
        }
    }

    void mixExchangesEachNumberOnce()
    {
        const Table<int, int, QString, double, QString> rows{
            {"four numbers", 1, 4, "", 0.5, "2>3 3>2"},
            {"always the first", 10, 15, "", 0.0, "11>14 12>11 13>12 14>13"},
            {"always the last", 10, 15, "", 0.999999, "11>14 12>11 13>12 14>13"},
            {"a fixed partner is not drawn again", 10, 15, "14", 0.999999, ""},
            {"one alone is free", 10, 15, "11-13", 0.5, ""}};
        for (const auto &[name, low, high, fixed, drawn, moved] : rows) {
            const auto draw = [value = drawn] { return value; };
            QCOMPARE(moves(MixMap(low, high, marks(fixed), draw)), moved);
        }
    }

    void everyMapIsAPermutationThatLeavesTheFixedAlone()
    {
        QRandomGenerator random(7);
        for (int round = 0; round < 400; ++round) {
            const Marks fixed = randomMarks(random, random.bounded(100));
            const Marks written = randomMarks(random, random.bounded(100));
            const int low = random.bounded(1, 1990);
            const int high = random.bounded(low + 3, round % 2 == 0 ? 2001 : low + 10);
            const auto holds = [&](const RenumberMap &map, int first, int last) {
                return isPermutation(map, first, last, fixed);
            };
            const auto drawn = [&random] { return random.generateDouble(); };
            QVERIFY(holds(MixMap(low, high, fixed, drawn), low + 1, high - 1));
            if (const auto packed = PackHolesMap(low, high, written, fixed))
                QVERIFY(holds(*packed, low, high));
            if (const int by = random.bounded(low); by > 0)
                QVERIFY(holds(BlockMoveMap(low, high, by, Towards::Lower, fixed), low - by, high));
            if (const int by = random.bounded(2001 - high); by > 0)
                QVERIFY(holds(BlockMoveMap(low, high, by, Towards::Higher, fixed), low, high + by));
        }
    }
};

QTEST_APPLESS_MAIN(tst_mapBuilders)
#include "tst_mapBuilders.moc"
