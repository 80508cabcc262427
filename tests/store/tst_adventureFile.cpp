#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "store/AdventureFile.h"
#include "store/ParagraphStore.h"
#include "support/AdventureBuilder.h"

#include <QTest>

class tst_adventureFile : public QObject
{
    Q_OBJECT

    static AdventureContents read(const TestAdventure &adventure, const QByteArray &bytes)
    {
        return readAdventure(
            std::make_shared<OpenedFile>(adventure.file(QStringLiteral("a.usm"), bytes)));
    }
    static QList<int> writtenIn(const ParagraphArray<quint8, 2002> &written)
    {
        QList<int> numbers;
        for (int n = 0; n < written.count(); ++n) {
            if (written.at(n) == 1)
                numbers.append(static_cast<int>(n));
        }
        return numbers;
    }
    static AdventureBuilder small()
    {
        return AdventureBuilder({QStringLiteral("0: notes"), QStringLiteral("3!: Va au 12"),
                                 QStringLiteral("12: Été au 3")});
    }

private Q_SLOTS:
    void readsWhatTheFileSays()
    {
        TestAdventure adventure;
        Variables &v = adventure.variables;
        v.Unmixable.at(7) = 1;
        v.refIndex.at(7) = QStringLiteral("0001/");
        takeOver(v, read(adventure, small().current(12).phrase("aller \xE0 ").bytes()));
        QCOMPARE(v.TargetPhrase, QStringLiteral("aller à "));
        QCOMPARE(v.LowestWritten, qint16{0});
        QCOMPARE(v.HighestWritten, qint16{12});
        QCOMPARE(v.CurrentParagraph, qint16{12});
        QCOMPARE(writtenIn(v.Written), (QList<int>{0, 3, 12}));
        QCOMPARE(writtenIn(v.Unmixable), QList<int>{3});
        QCOMPARE(v.refIndex.at(12), QStringLiteral("0003/"));
        QCOMPARE(v.refIndex.at(7), QString());
        QCOMPARE(GetParagraphRtf(v, 12), rtfOf(QStringLiteral("Été au 3")));
        QVERIFY(v.CurrentFormat && v.AdventureOpen && !v.AdventureModified);
    }

    void readsOlderVersions_data()
    {
        QTest::addColumn<int>("version");
        QTest::addColumn<QList<int>>("fixed");
        QTest::newRow("25 carries flags") << 25 << QList<int>{3};
        QTest::newRow("24 does not") << 24 << QList<int>();
        QTest::newRow("any other number") << 36 << QList<int>();
    }
    void readsOlderVersions()
    {
        QFETCH(int, version);
        TestAdventure adventure;
        Variables &v = adventure.variables;
        takeOver(v, read(adventure, small().oldBytes(version)));
        QVERIFY(!v.CurrentFormat);
        QCOMPARE(v.TargetPhrase, QStringLiteral(" au "));
        QCOMPARE(writtenIn(v.Written), (QList<int>{0, 3, 12}));
        QTEST(writtenIn(v.Unmixable), "fixed");
        QCOMPARE(GetParagraphRtf(v, 3), rtfOf(QStringLiteral("Va au 12")));
        QCOMPARE(GetParagraphRtf(v, 4), QByteArray());
    }

    void writtenFileIsWhatAnotherHandLays()
    {
        TestAdventure adventure;
        takeOver(adventure.variables, read(adventure, small().oldBytes(25)));
        adventure.variables.refIndex.at(3) = QStringLiteral("0012/");
        adventure.variables.refIndex.at(12) = QStringLiteral("0003/");
        writeAdventure(adventure.variables, adventure.path(QStringLiteral("b.usm")));
        QCOMPARE(adventure.content(QStringLiteral("b.usm")), small().bytes());
    }

    void anEmptyAdventureHasHeaderPhraseOneFlagAndEnd()
    {
        TestAdventure adventure;
        writeAdventure(adventure.variables, adventure.path(QStringLiteral("b.usm")));
        QCOMPARE(adventure.content(QStringLiteral("b.usm")), AdventureBuilder().bytes());
        adventure.variables.TargetPhrase.clear();
        writeAdventure(adventure.variables, adventure.path(QStringLiteral("b.usm")));
        QCOMPARE(adventure.content(QStringLiteral("b.usm")).size(), 8 + 4 + 2 + 4 + 1 + 4);
    }

    void everyShorterFileIsAReadError_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("35") << small().bytes();
        QTest::newRow("25, up to its last offset")
            << small().oldBytes(25).left(8 + 96 + 1000 + 1001 * 4);
    }
    void everyShorterFileIsAReadError()
    {
        QFETCH(QByteArray, bytes);
        TestAdventure adventure;
        int refused = 0;
        for (qsizetype length = 0; length < bytes.size(); ++length) {
            try {
                read(adventure, bytes.left(length));
            } catch (const UsmiraError &) {
                ++refused;
            }
        }
        QCOMPARE(refused, bytes.size());
    }

    void damageIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray good = small().bytes();
        const qsizetype section = good.indexOf("SECT");
        const auto row = [](const char *name, QByteArray bytes, qsizetype at,
                            const QByteArray &damage) {
            QTest::newRow(name) << bytes.replace(at, damage.size(), damage);
        };
        row("version above 32767", good, 0, "\x80");
        row("lowest above 32767", good, 2, "\x80");
        row("section above 2000", good, section + 4, QByteArray("\x07\xD1", 2));
        row("text beyond the end", good, section + 6, QByteArray("\x7F\xFF\xFF\xFF", 4));
        row("text of 4 GiB", good, section + 6, QByteArray("\xFF\xFF\xFF\xFF", 4));
        row("phrase beyond the end", good, 12, QByteArray("\x7F\xFF", 2));
        row("phrase of 32768", good, 12, QByteArray("\x80\x00", 2));
        row("old phrase too long", small().oldBytes(25), 8, QByteArray(1, 32));
    }
    void damageIsRefused()
    {
        QFETCH(QByteArray, bytes);
        TestAdventure adventure;
        QVERIFY_THROWS_EXCEPTION(UsmiraError, read(adventure, bytes));
    }

    void oddHeadersAreRepaired_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QList<int>>("range");
        QTest::newRow("reversed") << small().range(9, 2).bytes() << QList<int>{0, 12};
        QTest::newRow("too narrow") << small().range(3, 5).bytes() << QList<int>{0, 12};
        QTest::newRow("too wide stays") << small().range(0, 1500).bytes() << QList<int>{0, 1500};
        QTest::newRow("beyond 2000") << small().range(0, 2500).bytes() << QList<int>{0, 12};
        QTest::newRow("reversed and empty")
            << AdventureBuilder().range(9, 2).bytes() << QList<int>{1, 1};
    }
    void oddHeadersAreRepaired()
    {
        QFETCH(QByteArray, bytes);
        TestAdventure adventure;
        const AdventureContents contents = read(adventure, bytes);
        QTEST((QList<int>{contents.lowest, contents.highest}), "range");
    }

    void theLastOfTwoSectionsWins()
    {
        TestAdventure adventure;
        QByteArray bytes = AdventureBuilder({QStringLiteral("3: ancien")}).bytes();
        QByteArray second = AdventureBuilder({QStringLiteral("3: nouveau")}).bytes();
        bytes.chop(4);
        takeOver(adventure.variables, read(adventure, bytes + second.mid(second.indexOf("SECT"))));
        QCOMPARE(GetParagraphRtf(adventure.variables, 3), rtfOf(QStringLiteral("nouveau")));
    }

    void unknownTagsArePassedOver()
    {
        TestAdventure adventure;
        QByteArray bytes = small().bytes();
        bytes.insert(bytes.indexOf("SECT"), QByteArray(40 * 1000 * 1000, 'x'));
        QCOMPARE(writtenIn(read(adventure, bytes).written), (QList<int>{0, 3, 12}));
    }

    void fallingAndFarOffsetsTouchTheirParagraphOnly()
    {
        TestAdventure adventure;
        QByteArray bytes = small().oldBytes(24);
        const qsizetype offsets = 8 + 96;
        bytes.replace(offsets + 4 * 500, 4, QByteArray("\x00\x00\x00\x01", 4));  // 499 falls
        bytes.replace(offsets + 4 * 1000, 4, QByteArray("\xFF\xFF\xFF\xFF", 4)); // 999 is far
        takeOver(adventure.variables, read(adventure, bytes));
        QCOMPARE(adventure.variables.Written.at(499), quint8{0});
        QCOMPARE(GetParagraphRtf(adventure.variables, 12), rtfOf(QStringLiteral("Été au 3")));
        QVERIFY_THROWS_EXCEPTION(FileError, GetParagraphRtf(adventure.variables, 999));
    }

    void longListsAreCutToWholeEntries()
    {
        TestAdventure adventure;
        takeOver(adventure.variables, read(adventure, small().bytes()));
        adventure.variables.refIndex.at(3) = QStringLiteral("0012/").repeated(7000);
        const AdventureContents read =
            writeAdventure(adventure.variables, adventure.path(QStringLiteral("b.usm")));
        QCOMPARE(read.refIndex.at(3), QStringLiteral("0012/").repeated(6553));
    }

    void listsOfOddCharactersAreKept()
    {
        TestAdventure adventure;
        takeOver(adventure.variables, read(adventure, small().list(3, "\x80odd").bytes()));
        writeAdventure(adventure.variables, adventure.path(QStringLiteral("b.usm")));
        QCOMPARE(adventure.content(QStringLiteral("b.usm")), small().list(3, "\x80odd").bytes());
    }
};

QTEST_MAIN(tst_adventureFile)
#include "tst_adventureFile.moc"
