#include "platform/LenientNumbers.h"

#include <QTest>

class tst_lenientNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheNumberThatATextBeginsWith_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number");
        const auto row = [](const char *name, const QString &text, double number) {
            QTest::newRow(name) << text << number;
        };
        row("whole", QStringLiteral("26"), 26);
        row("stopped by a letter", QStringLiteral("26. V"), 26);
        row("blanks within", QStringLiteral(" 2\t6\n "), 26);
        row("no number", QStringLiteral("vingt"), 0);
        row("nothing", QString(), 0);
        row("fraction", QStringLiteral("12.75x"), 12.75);
        row("fraction alone", QStringLiteral(".5"), 0.5);
        row("point alone", QStringLiteral("."), 0);
        row("comma ends it", QStringLiteral("3,5"), 3);
        row("exponent", QStringLiteral("1e3"), 1000);
        row("negative exponent", QStringLiteral("25E-1"), 2.5);
        row("letter e without digits", QStringLiteral("12e st"), 12);
        row("no sign", QStringLiteral("-5"), 0);
        row("carriage return ends it", QStringLiteral("12\r\n3"), 12);
        row("no-break space is no blank", QStringLiteral("1\u00a02"), 1);
        row("leading zeros", QStringLiteral("0026/"), 26);
        row("digits of other scripts", QStringLiteral("٣"), 0);
        row("too large to hold", QStringLiteral("9e999"), 0);
    }
    void readsTheNumberThatATextBeginsWith()
    {
        QFETCH(QString, text);
        QTEST(lenientNumber(text), "number");
    }

    void roundsHalves_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("even");
        QTest::addColumn<int>("away");
        QTest::newRow("11.5") << 11.5 << 12 << 12;
        QTest::newRow("12.5") << 12.5 << 12 << 13;
        QTest::newRow("12.7") << 12.7 << 13 << 13;
        QTest::newRow("-0.5") << -0.5 << 0 << -1;
        QTest::newRow("beyond") << 1e12 << std::numeric_limits<int>::max()
                                << std::numeric_limits<int>::max();
    }
    void roundsHalves()
    {
        QFETCH(double, value);
        QTEST(roundHalfEven(value), "even");
        QTEST(roundHalfAway(value), "away");
    }
};

QTEST_APPLESS_MAIN(tst_lenientNumbers)
#include "tst_lenientNumbers.moc"
