#include "editor/PadNumber.h"
#include "platform/OpenedFile.h"
#include "store/AdventureFile.h"
#include "store/ReferenceIndex.h"
#include "support/AdventureBuilder.h"

#include <QTest>

class tst_referenceIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scansReferences_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("phrase");
        QTest::addColumn<QString>("entry");
        const auto row = [](const char *name, const QString &text, const QString &entry,
                            const QString &phrase = QStringLiteral(" au ")) {
            QTest::newRow(name) << text << phrase << entry;
        };
        row("one", QStringLiteral("Rendez-vous au 26."), QStringLiteral("0026/"));
        row("several, repeats kept", QStringLiteral("Va au 26, au 103 ou au 26"),
            QStringLiteral("0026/0103/0026/"));
        row("letter case", QStringLiteral("Va AU 15"), QStringLiteral("0015/"));
        row("accented letter case", QStringLiteral("ALLEZ À 15"), QStringLiteral("0015/"),
            QStringLiteral("allez à "));
        row("out of range", QStringLiteral("Va au 0, au 2001, au vingt"), QString());
        row("five characters only", QStringLiteral("Va au   1234"), QStringLiteral("0123/"));
        row("blanks within", QStringLiteral("Va au 2 6 ans"), QStringLiteral("0026/"));
        row("fraction rounds away", QStringLiteral("Va au 12.5"), QStringLiteral("0013/"));
        row("line end stops the number", QStringLiteral("Va au 12\r\n3 jours"),
            QStringLiteral("0012/"));
        row("at the very end", QStringLiteral("Va au "), QString());
        row("next search begins behind the phrase", QStringLiteral("aa1aa"),
            QStringLiteral("0001/"), QStringLiteral("aa"));
        row("empty phrase", QStringLiteral("1 2 3"), QString(), QString());
    }
    void scansReferences()
    {
        Variables v;
        QFETCH(QString, phrase);
        v.TargetPhrase = phrase;
        v.refIndex.at(7) = QStringLiteral("0001/");
        QFETCH(QString, text);
        ScanReferences(v, text, 7);
        QTEST(v.refIndex.at(7), "entry");
    }

    void rebuildScansEveryWrittenParagraphAndSkipsDamage()
    {
        TestAdventure adventure;
        const QString path = adventure.file(
            QStringLiteral("a.usm"),
            AdventureBuilder({QStringLiteral("3: Va au 7"), QStringLiteral("7: Va au 3 ou au 9"),
                              QStringLiteral("9: Fin")})
                .list(3, "0999/")
                .rawText(9, "not RTF au 3")
                .bytes());
        takeOver(adventure.variables, readAdventure(std::make_shared<OpenedFile>(path)));
        RebuildReferenceIndex(adventure.variables, [](int, int) {});
        QCOMPARE(adventure.variables.refIndex.at(3), QStringLiteral("0007/"));
        QCOMPARE(adventure.variables.refIndex.at(7), QStringLiteral("0003/0009/"));
        QCOMPARE(adventure.variables.refIndex.at(9), QString());
        QCOMPARE(incomingParagraphs(adventure.variables, 3), QList<int>{7});
    }

    void incomingListsEachWrittenReferrerOnce()
    {
        Variables v;
        v.LowestWritten = 2;
        v.HighestWritten = 9;
        for (const int n : {2, 5, 9})
            v.Written.at(n) = 1;
        v.refIndex.at(2) = QStringLiteral("0005/0026/0005/");
        v.refIndex.at(5) = QStringLiteral("0005/");
        v.refIndex.at(6) = QStringLiteral("0005/"); // not written
        v.refIndex.at(9) = QStringLiteral("0050/0500/");
        QCOMPARE(incomingParagraphs(v, 5), (QList<int>{2, 5}));
        QCOMPARE(incomingParagraphs(v, 26), QList<int>{2});
        QCOMPARE(incomingParagraphs(v, 1), QList<int>());
    }

    void unusableEntriesAreSkipped()
    {
        QCOMPARE(referredParagraphs(QStringLiteral("0026/abcd/2001/0000/2000/12")),
                 (QList<int>{26, 0, 2000}));
    }

    void followsTheNumberUnderTheCaret_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("caret");
        QTest::addColumn<int>("number");
        const QString text = QStringLiteral("Va au 26. Puis");
        QTest::newRow("first digit") << text << 6 << 26;
        QTest::newRow("last digit") << text << 7 << 26;
        QTest::newRow("space before") << text << 5 << 26;
        QTest::newRow("point behind") << text << 8 << 0;
        QTest::newRow("end of the text") << text << int(text.size()) << 0;
        QTest::newRow("text begins with it") << QStringLiteral("123 au") << 1 << 23;
        QTest::newRow("empty text") << QString() << 0 << 0;
    }
    void followsTheNumberUnderTheCaret()
    {
        QFETCH(QString, text);
        QFETCH(int, caret);
        QTEST(numberAround(text, caret), "number");
    }

    void padsNumbersForLists()
    {
        QCOMPARE(PadNumber(5), QStringLiteral("     5"));
        QCOMPARE(PadNumber(42), QStringLiteral("   42"));
        QCOMPARE(PadNumber(123), QStringLiteral(" 123"));
        QCOMPARE(PadNumber(1000), QStringLiteral("1000"));
        QCOMPARE(PadNumber(-7), QStringLiteral("-0007"));
    }
};

QTEST_GUILESS_MAIN(tst_referenceIndex)
#include "tst_referenceIndex.moc"
