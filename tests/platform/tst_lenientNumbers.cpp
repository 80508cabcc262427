#include "TestTable.h"
#include "platform/LenientNumbers.h"

class tst_lenientNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheNumberThatATextBeginsWith_data()
    {
        addTable<QString, double>({"text", "number"},
                                  {{"stopped by a letter", "26. V", 26},
                                   {"blanks within", " 2\t6\n ", 26},
                                   {"no number", "vingt", 0},
                                   {"nothing", "", 0},
                                   {"fraction", "12.75x", 12.75},
                                   {"fraction alone", ".5", 0.5},
                                   {"point alone", ".", 0},
                                   {"comma ends it", "3,5", 3},
                                   {"exponent", "1e3", 1000},
                                   {"negative exponent", "25E-1", 2.5},
                                   {"letter e without digits", "12e st", 12},
                                   {"no sign", "-5", 0},
                                   {"carriage return ends it", "12\r\n3", 12},
                                   {"no-break space is no blank", "1\u00a02", 1},
                                   {"leading zeros", "0026/", 26},
                                   {"digits of other scripts", "٣", 0},
                                   {"too large to hold", "9e999", 0}});
    }
    void readsTheNumberThatATextBeginsWith()
    {
        QFETCH(QString, text);
        QTEST(lenientNumber(text), "number");
    }

    void roundsHalves_data()
    {
        constexpr int most = std::numeric_limits<int>::max();
        addTable<double, int, int>({"value", "even", "away"}, {{"11.5", 11.5, 12, 12},
                                                               {"12.5", 12.5, 12, 13},
                                                               {"12.7", 12.7, 13, 13},
                                                               {"-0.5", -0.5, 0, -1},
                                                               {"beyond", 1e12, most, most}});
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
