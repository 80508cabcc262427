#include "platform/OpenedFile.h"
#include "store/AdventureFile.h"
#include "store/ReferenceIndex.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"

class tst_referenceIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scansReferences_data()
    {
        addTable<QString, QString, QString>(
            {"text", "phrase", "entry"},
            {{"one", "Rendez-vous au 26.", " au ", "0026/"},
             {"several, repeats kept", "Va au 26, au 103 ou au 26", " au ", "0026/0103/0026/"},
             {"letter case", "Va AU 15", " au ", "0015/"},
             {"accented letter case", "ALLEZ À 15", "allez à ", "0015/"},
             {"out of range", "Va au 0, au 2001, au vingt", " au ", ""},
             {"five characters only", "Va au   1234", " au ", "0123/"},
             {"blanks within", "Va au 2 6 ans", " au ", "0026/"},
             {"fraction rounds away", "Va au 12.5", " au ", "0013/"},
             {"line end stops the number", "Va au 12\r\n3 jours", " au ", "0012/"},
             {"at the very end", "Va au ", " au ", ""},
             {"next search begins behind the phrase", "aa1aa", "aa", "0001/"},
             {"empty phrase", "1 2 3", "", ""}});
    }
    void scansReferences()
    {
        Variables v;
        QFETCH(QString, phrase);
        v.TargetPhrase = phrase;
        v.refIndex.at(7) = "0001/";
        QFETCH(QString, text);
        ScanReferences(v, text, 7);
        QTEST(v.refIndex.at(7), "entry");
    }

    void rebuildScansEveryWrittenParagraphAndSkipsDamage()
    {
        TestAdventure adventure;
        Variables &v = adventure.variables;
        const QString path =
            adventure.file("a.usm", AdventureBuilder({"3: Va au 7", "7: Va au 3 ou au 9", "9: Fin"})
                                        .list(3, "0999/")
                                        .rawText(9, "not RTF au 3")
                                        .bytes());
        takeOver(v, readAdventure(std::make_shared<OpenedFile>(path)));
        RebuildReferenceIndex(v, [](int, int) {});
        QCOMPARE(v.refIndex.at(3), "0007/");
        QCOMPARE(v.refIndex.at(7), "0003/0009/");
        QCOMPARE(v.refIndex.at(9), QString());
        v.refIndex.at(6) = "0003/"; // not written
        QCOMPARE(incomingParagraphs(v, 3), QList<int>{7});
        v.refIndex.at(9) = "0070/0700/0007/0007/";
        QCOMPARE(incomingParagraphs(v, 7), (QList<int>{3, 9}));
        QCOMPARE(referredParagraphs("0026/abcd/2001/0000/2000/12"), (QList<int>{26, 0, 2000}));
    }

    void followsTheNumberUnderTheCaret_data()
    {
        const QString text = "Va au 26. Puis";
        addTable<QString, int, int>({"text", "caret", "number"},
                                    {{"first digit", text, 6, 26},
                                     {"last digit", text, 7, 26},
                                     {"space before", text, 5, 26},
                                     {"point behind", text, 8, 0},
                                     {"end of the text", text, int(text.size()), 0},
                                     {"text begins with it", "123 au", 1, 23},
                                     {"empty text", "", 0, 0}});
    }
    void followsTheNumberUnderTheCaret()
    {
        QFETCH(QString, text);
        QFETCH(int, caret);
        QTEST(numberAround(text, caret), "number");
    }
};

QTEST_GUILESS_MAIN(tst_referenceIndex)
#include "tst_referenceIndex.moc"
