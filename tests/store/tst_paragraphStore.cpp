#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "richtext/HiddenBox.h"
#include "store/AdventureFile.h"
#include "store/ParagraphStore.h"
#include "support/AdventureBuilder.h"

#include <QDir>
#include <QFile>
#include <QTest>

class tst_paragraphStore : public QObject
{
    Q_OBJECT

    static void open(TestAdventure &adventure, const QByteArray &bytes)
    {
        const QString path = adventure.file(QStringLiteral("a.usm"), bytes);
        takeOver(adventure.variables, readAdventure(std::make_shared<OpenedFile>(path)));
        adventure.variables.AdventurePath = path;
        adventure.variables.FilePrefix = QStringLiteral("a-");
    }
    static void type(Variables &v, HiddenBox &box, int n, const QString &text)
    {
        v.CurrentParagraph = static_cast<qint16>(n);
        box.setText(text);
        v.ParagraphDirty = true;
        SaveCurParg(v, box);
    }
    static QByteArray threeParagraphs()
    {
        return AdventureBuilder({QStringLiteral("2: deux"), QStringLiteral("5: cinq"),
                                 QStringLiteral("9: neuf")})
            .bytes();
    }

private Q_SLOTS:
    void prefixTakesTheInitials_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("prefix");
        QTest::newRow("words") << QStringLiteral("La Tour d'Ivoire.usm") << QStringLiteral("LTdI-");
        QTest::newRow("one word") << QStringLiteral("Dragon.usm") << QStringLiteral("D-");
        QTest::newRow("hyphen first") << QStringLiteral("-x.usm") << QStringLiteral("-x-");
        QTest::newRow("accent") << QStringLiteral("Été à l'île.usm") << QStringLiteral("Éàlî-");
    }
    void prefixTakesTheInitials()
    {
        QFETCH(QString, name);
        QTEST(filePrefixOf(name), "prefix");
    }

    void savingMakesAWorkingFileAndWidensTheRange()
    {
        TestAdventure adventure;
        open(adventure, threeParagraphs());
        Variables &v = adventure.variables;
        HiddenBox box;
        type(v, box, 12, QStringLiteral("Rendez-vous au 26"));
        QCOMPARE(adventure.workingFiles(), QStringList{QStringLiteral("a-0012.rtf")});
        QCOMPARE(GetParagraphRtf(v, 12), rtfOf(QStringLiteral("Rendez-vous au 26")));
        QCOMPARE(v.refIndex.at(12), QStringLiteral("0026/"));
        QCOMPARE(v.LowestWritten, qint16{2});
        QCOMPARE(v.HighestWritten, qint16{12});
        QVERIFY(v.Written.at(12) == 1 && v.Extracted.at(12) == 1);
        QVERIFY(v.AdventureModified && !v.ParagraphDirty);
        type(v, box, 0, QStringLiteral("note"));
        type(v, box, 2000, QStringLiteral("fin"));
        QCOMPARE(v.LowestWritten, qint16{0});
        QCOMPARE(v.HighestWritten, qint16{2000});
    }

    void aCleanBoxIsNotSaved()
    {
        TestAdventure adventure;
        open(adventure, threeParagraphs());
        HiddenBox box;
        box.setText(QStringLiteral("ignored"));
        SaveCurParg(adventure.variables, box);
        QVERIFY(adventure.workingFiles().isEmpty());
        QVERIFY(!adventure.variables.AdventureModified);
    }

    void emptyingDropsTheFileAndKeepsTheRange()
    {
        TestAdventure adventure;
        open(adventure, threeParagraphs());
        Variables &v = adventure.variables;
        HiddenBox box;
        type(v, box, 9, QStringLiteral("au 5"));
        type(v, box, 9, QString());
        type(v, box, 2, QString());
        QVERIFY(adventure.workingFiles().isEmpty());
        QVERIFY(v.Written.at(9) == 0 && v.Extracted.at(9) == 0 && v.Written.at(2) == 0);
        QCOMPARE(v.refIndex.at(9), QString());
        QCOMPARE(v.LowestWritten, qint16{2});
        QCOMPARE(v.HighestWritten, qint16{9});
        QCOMPARE(GetParagraphRtf(v, 2), QByteArray());
    }

    void aSaveThatFailsChangesNothing()
    {
        TestAdventure adventure;
        open(adventure, threeParagraphs());
        Variables &v = adventure.variables;
        QVERIFY(QDir(v.WorkingFolder).removeRecursively());
        HiddenBox box;
        box.setText(QStringLiteral("précieux"));
        v.CurrentParagraph = 20;
        v.ParagraphDirty = true;
        QVERIFY_THROWS_EXCEPTION(FileError, SaveCurParg(v, box));
        QVERIFY(v.ParagraphDirty && !v.AdventureModified);
        QVERIFY(v.Written.at(20) == 0 && v.HighestWritten == 9);
        QCOMPARE(box.text(), QStringLiteral("précieux"));
    }

    void textsComeFromTheFileThatWasOpened()
    {
        TestAdventure adventure;
        open(adventure, threeParagraphs());
        const Variables &v = adventure.variables;
        const QByteArray five = GetParagraphRtf(v, 5);
        QCOMPARE(five, rtfOf(QStringLiteral("cinq")));
        QVERIFY(QFile::rename(v.AdventurePath, adventure.path(QStringLiteral("b.usm"))));
        adventure.file(QStringLiteral("a.usm"), QByteArray(5000, 'x'));
        QCOMPARE(GetParagraphRtf(v, 5), five);
        QFile intruder(adventure.path(QStringLiteral("b.usm")));
        QVERIFY(intruder.open(QIODevice::ReadWrite));
        intruder.write(QByteArray(5000, 'y'));
        intruder.close();
        QVERIFY_THROWS_EXCEPTION(FileError, GetParagraphRtf(v, 5));
    }

    void aMissingWorkingFileIsAnErrorAndNotTheOldText()
    {
        TestAdventure adventure;
        open(adventure, threeParagraphs());
        HiddenBox box;
        type(adventure.variables, box, 5, QStringLiteral("neuf"));
        QVERIFY(QFile::remove(workingFilePath(adventure.variables, 5)));
        QVERIFY_THROWS_EXCEPTION(FileError, GetParagraphRtf(adventure.variables, 5));
    }

    void discardingRemovesTheWorkingFilesOfThisAdventureOnly()
    {
        TestAdventure adventure;
        open(adventure, threeParagraphs());
        HiddenBox box;
        type(adventure.variables, box, 2, QStringLiteral("x"));
        type(adventure.variables, box, 9, QStringLiteral("y"));
        adventure.file(QStringLiteral("Dossier Usmira/b-0002.rtf"), "another's");
        DiscardWorkingFiles(adventure.variables);
        QCOMPARE(adventure.workingFiles(), QStringList{QStringLiteral("b-0002.rtf")});
        QCOMPARE(adventure.variables.Extracted.at(9), quint8{0});
    }
};

QTEST_MAIN(tst_paragraphStore)
#include "tst_paragraphStore.moc"
