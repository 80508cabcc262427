#include "store/LenientNumbers.h"

#include <QTest>

class tst_lenientNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheNumberThatATextBeginsWith()
    {
        const std::pair<const char *, double> rows[] = {
            {"26. V", 26}, {" 2\t6\n ", 26},  {"12\r\n3", 12}, {"1\u00a02", 1}, {"vingt", 0},
            {"", 0},       {"12.75x", 12.75}, {".5", 0.5},     {".", 0},        {"3,5", 3},
            {"1e3", 1000}, {"25E-1", 2.5},    {"12e st", 12},  {"-5", 0},       {"0026/", 26},
            {"٣", 0},      {"9e999", 0}};
        for (const auto &[text, number] : rows)
            QVERIFY2(lenientNumber(QString(text)) == number, text);
    }

    void roundsHalves()
    {
        constexpr int most = std::numeric_limits<int>::max();
        const std::tuple<double, int, int> rows[] = {
            {11.5, 12, 12}, {12.5, 12, 13}, {12.7, 13, 13}, {-0.5, 0, -1}, {1e12, most, most}};
        for (const auto &[value, even, away] : rows) {
            QCOMPARE(roundHalfEven(value), even);
            QCOMPARE(roundHalfAway(value), away);
        }
    }
};

QTEST_APPLESS_MAIN(tst_lenientNumbers)
#include "tst_lenientNumbers.moc"
