#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "store/AdventureFile.h"
#include "store/DamagedTexts.h"
#include "store/ParagraphTexts.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"

class tst_adventureFile : public QObject
{
    Q_OBJECT

    static AdventureContents read(const TestAdventure &adventure, const QByteArray &bytes)
    {
        return readAdventure(std::make_shared<OpenedFile>(adventure.file("a.usm", bytes)));
    }
    static QList<int> setIn(const ParagraphArray<quint8, 2002> &flags)
    {
        QList<int> numbers;
        for (int n = 0; n < flags.count(); ++n)
            if (flags.at(n) == 1)
                numbers.append(n);
        return numbers;
    }
    static AdventureBuilder small()
    {
        return AdventureBuilder({"0: notes", "3!: Va au 12", "12: Été au 3"});
    }

private Q_SLOTS:
    void readsWhatTheFileSays()
    {
        TestAdventure adventure;
        Variables &v = adventure.variables;
        v.Unmixable.at(7) = 1;
        v.refIndex.at(7) = "0001/";
        takeOver(v, read(adventure, small().current(12).phrase("aller \xE0 ").bytes()));
        QCOMPARE(v.TargetPhrase, "aller à ");
        QVERIFY(v.LowestWritten == 0 && v.HighestWritten == 12 && v.CurrentParagraph == 12);
        QCOMPARE(setIn(v.Written), (QList<int>{0, 3, 12}));
        QCOMPARE(setIn(v.Unmixable), QList<int>{3});
        QCOMPARE(v.refIndex.at(12), "0003/");
        QCOMPARE(v.refIndex.at(7), QString());
        QCOMPARE(GetParagraphRtf(v, 12), rtfOf("Été au 3"));
        QVERIFY(v.CurrentFormat && v.AdventureOpen && !v.AdventureModified);
    }

    void readsOlderVersions_data()
    {
        addTable<int, QList<int>>(
            {"version", "fixed"},
            {{"25 carries flags", 25, {3}}, {"24 does not", 24, {}}, {"any other", 36, {}}});
    }
    void readsOlderVersions()
    {
        QFETCH(int, version);
        TestAdventure adventure;
        Variables &v = adventure.variables;
        takeOver(v, read(adventure, small().oldBytes(version)));
        QVERIFY(!v.CurrentFormat);
        QCOMPARE(v.TargetPhrase, " au ");
        QCOMPARE(setIn(v.Written), (QList<int>{0, 3, 12}));
        QTEST(setIn(v.Unmixable), "fixed");
        QCOMPARE(GetParagraphRtf(v, 3), rtfOf("Va au 12"));
    }

    void writtenFileIsWhatAnotherHandLays()
    {
        TestAdventure adventure;
        Variables &v = adventure.variables;
        const auto written = [&] {
            writeAdventure(v, adventure.path("b.usm"));
            return adventure.content("b.usm");
        };
        QCOMPARE(written(), AdventureBuilder().bytes()); // empty
        v.TargetPhrase.clear();
        QCOMPARE(written().size(), 8 + 4 + 2 + 4 + 1 + 4);
        takeOver(v, read(adventure, small().oldBytes(25)));
        v.refIndex.at(3) = "0012/";
        v.refIndex.at(12) = "0003/";
        QCOMPARE(written(), small().bytes());
        v.refIndex.at(12) = "€odd";
        QCOMPARE(written(), small().list(12, "\x80odd").bytes());
        v.refIndex.at(12) = QString("0012/").repeated(7000); // 16 bits do not hold its length
        QCOMPARE(written(), small().list(12, QByteArray("0012/").repeated(6553)).bytes());
    }

    void everyShorterFileIsAReadError()
    {
        const TestAdventure adventure;
        for (const QByteArray &bytes :
             {small().bytes(), small().oldBytes(25).left(8 + 96 + 1000 + 1001 * 4)})
            for (qsizetype length = 0; length < bytes.size(); ++length)
                QVERIFY_THROWS_EXCEPTION(UsmiraError, read(adventure, bytes.left(length)));
    }

    void damageIsRefused_data()
    {
        const QByteArray good = small().bytes();
        const qsizetype section = good.indexOf("SECT");
        const auto with = [](QByteArray bytes, qsizetype at, const QByteArray &damage) {
            return bytes.replace(at, damage.size(), damage);
        };
        addTable<QByteArray>(
            {"bytes"},
            {{"version above 32767", with(good, 0, "\x80")},
             {"lowest above 32767", with(good, 2, "\x80")},
             {"section above 2000", with(good, section + 4, QByteArray("\x07\xD1", 2))},
             {"text beyond the end", with(good, section + 6, QByteArray("\x7F\xFF\xFF\xFF", 4))},
             {"text of 4 GiB", with(good, section + 6, QByteArray("\xFF\xFF\xFF\xFF", 4))},
             {"phrase beyond the end", with(good, 12, QByteArray("\x7F\xFF", 2))},
             {"phrase of 32768", with(good, 12, QByteArray("\x80\x00", 2))},
             {"old phrase too long", with(small().oldBytes(25), 8, QByteArray(1, 32))}});
    }
    void damageIsRefused()
    {
        QFETCH(QByteArray, bytes);
        TestAdventure adventure;
        QVERIFY_THROWS_EXCEPTION(UsmiraError, read(adventure, bytes));
    }

    void oddHeadersAreRepaired_data()
    {
        addTable<QByteArray, QList<int>>(
            {"bytes", "range"},
            {{"reversed", small().range(9, 2).bytes(), {0, 12}},
             {"too narrow", small().range(3, 5).bytes(), {0, 12}},
             {"too wide stays", small().range(0, 1500).bytes(), {0, 1500}},
             {"beyond 2000", small().range(0, 2500).bytes(), {0, 12}},
             {"reversed and empty", AdventureBuilder().range(9, 2).bytes(), {1, 1}}});
    }
    void oddHeadersAreRepaired()
    {
        QFETCH(QByteArray, bytes);
        TestAdventure adventure;
        const AdventureContents contents = read(adventure, bytes);
        QTEST((QList<int>{contents.lowest, contents.highest}), "range");
    }

    void unknownTagsArePassedOverAndTheLastOfTwoSectionsWins()
    {
        TestAdventure adventure;
        QByteArray bytes = AdventureBuilder({"3: ancien"}).bytes();
        const QByteArray second = AdventureBuilder({"3: nouveau"}).bytes();
        bytes.chop(4);
        bytes += QByteArray(40 * 1000 * 1000, 'x') + second.mid(second.indexOf("SECT"));
        takeOver(adventure.variables, read(adventure, bytes));
        QCOMPARE(GetParagraphRtf(adventure.variables, 3), rtfOf("nouveau"));
    }

    void fallingAndFarOffsetsTouchTheirParagraphOnly()
    {
        TestAdventure adventure;
        Variables &v = adventure.variables;
        QByteArray bytes = small().oldBytes(24);
        const qsizetype offsets = 8 + 96;
        bytes.replace(offsets + 4 * 500, 4, QByteArray("\x00\x00\x00\x01", 4));  // 499 falls
        bytes.replace(offsets + 4 * 1000, 4, QByteArray("\xFF\xFF\xFF\xFF", 4)); // 999 is far
        takeOver(v, read(adventure, bytes));
        QCOMPARE(v.Written.at(499), quint8{0});
        QCOMPARE(GetParagraphRtf(v, 12), rtfOf("Été au 3"));
        QCOMPARE(damagedParagraphs(v), (QList<int>{500, 999})); // 500 begins with the header
    }
};

QTEST_MAIN(tst_adventureFile)
#include "tst_adventureFile.moc"
