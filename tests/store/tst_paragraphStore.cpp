#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "richtext/HiddenBox.h"
#include "richtext/TextLimit.h"
#include "store/AdventureFile.h"
#include "store/DamagedTexts.h"
#include "store/ParagraphStore.h"
#include "store/WorkingFiles.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QFile>

namespace
{
AdventureBuilder three()
{
    return AdventureBuilder({"2: deux", "5: cinq", "9: neuf"});
}

// An open adventure and the box that its paragraphs are typed into.
struct Store : TestAdventure {
    explicit Store(const QByteArray &bytes = three().bytes())
    {
        v.AdventurePath = file("a.usm", bytes);
        takeOver(v, readAdventure(std::make_shared<OpenedFile>(v.AdventurePath)));
        v.FilePrefix = "a-";
    }
    void type(int n, const QString &text)
    {
        v.CurrentParagraph = static_cast<qint16>(n);
        box.setText(text);
        v.ParagraphDirty = true;
        SaveCurParg(v, box);
    }
    // True when the paragraph is refused, and all is as before.
    bool refuses(int n, const QString &text)
    {
        try {
            type(n, text);
            return false;
        } catch (const UsmiraError &) {
            return v.ParagraphDirty && !v.AdventureModified && v.Written.at(n) == 0 &&
                   v.HighestWritten == 9 && box.text() == text;
        }
    }

    Variables &v = variables;
    HiddenBox box;
};
} // namespace

class tst_paragraphStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void prefixTakesTheInitials()
    {
        QCOMPARE(filePrefixOf("La Tour d'Ivoire.usm"), "LTdI-");
        QCOMPARE(filePrefixOf("-x.usm"), "-x-");
        QCOMPARE(filePrefixOf("Été à l'île.usm"), "Éàlî-");
    }

    void savingMakesAWorkingFileAndWidensTheRange()
    {
        Store s;
        s.box.setText("ignored");
        SaveCurParg(s.v, s.box);
        QVERIFY(s.workingFiles().isEmpty() && !s.v.AdventureModified);
        s.type(12, "Rendez-vous au 26");
        QCOMPARE(s.workingFiles(), (QStringList{"a-0012.rtf", "Session/Etat.xyz"}));
        QCOMPARE(GetParagraphRtf(s.v, 12), rtfOf("Rendez-vous au 26"));
        QCOMPARE(s.v.refIndex.at(12), "0026/");
        QVERIFY(s.v.LowestWritten == 2 && s.v.HighestWritten == 12);
        QVERIFY(s.v.Written.at(12) == 1 && s.v.Extracted.at(12) == 1);
        QVERIFY(s.v.AdventureModified && !s.v.ParagraphDirty);
        s.type(0, "note");
        s.type(2000, "fin");
        QVERIFY(s.v.LowestWritten == 0 && s.v.HighestWritten == 2000);
    }

    void emptyingDropsTheFileAndKeepsTheRange()
    {
        Store s;
        s.type(9, "au 5");
        s.type(9, {});
        s.type(2, {});
        QCOMPARE(s.workingFiles(), QStringList{"Session/Etat.xyz"});
        QVERIFY(s.v.Written.at(9) == 0 && s.v.Extracted.at(9) == 0 && s.v.Written.at(2) == 0);
        QCOMPARE(s.v.refIndex.at(9), QString());
        QVERIFY(s.v.LowestWritten == 2 && s.v.HighestWritten == 9);
        QCOMPARE(GetParagraphRtf(s.v, 2), QByteArray());
    }

    void aSaveThatFailsChangesNothing()
    {
        Store s;
        QVERIFY(QDir(s.v.WorkingFolder).removeRecursively());
        const QString place = s.file("Dossier Usmira", "in the folder's place");
        QVERIFY(s.refuses(20, "précieux"));
        QVERIFY(QFile::remove(place));
        s.type(20, "la place est libre");
        QVERIFY(s.workingFiles().contains("a-0020.rtf") &&
                !s.content("Dossier Usmira/Aide Française.rtf").isEmpty());
    }

    void textsComeFromTheFileThatWasOpened()
    {
        Store s;
        QVERIFY(QFile::rename(s.v.AdventurePath, s.path("b.usm")));
        s.file("a.usm", QByteArray(5000, 'x'));
        QCOMPARE(GetParagraphRtf(s.v, 5), rtfOf("cinq"));
        QFile intruder(s.path("b.usm"));
        QVERIFY(intruder.open(QIODevice::ReadWrite));
        intruder.write(QByteArray(5000, 'y'));
        intruder.close();
        QVERIFY_THROWS_EXCEPTION(FileError, GetParagraphRtf(s.v, 5));
    }

    void damagedTextsAreFoundAtOpening_data()
    {
        const QByteArray old = three().oldBytes(25);
        addTable<QByteArray, QList<int>>(
            {"bytes", "damaged"},
            {{"no RTF", three().rawText(5, "cinq").bytes(), {5}},
             {"byte order mark", three().rawText(5, "\xEF\xBB\xBF" + rtfOf("5")).bytes(), {}},
             {"nothing at all", three().rawText(5, {}).bytes(), {}},
             {"old file cut short", old.chopped(rtfOf("neuf").size() + 3), {5, 9}}});
    }
    void damagedTextsAreFoundAtOpening()
    {
        QFETCH(QByteArray, bytes);
        const Store s(bytes);
        QTEST(damagedParagraphs(s.v), "damaged");
    }

    void aTextBeyondTheLimitIsDamaged()
    {
        Store s;
        QByteArray bytes = AdventureBuilder({"5: cinq"}).bytes();
        const qsizetype text = bytes.indexOf("{");
        bytes.replace(text - 4, 4, QByteArray("\x02\x00\x00\x01", 4));
        QFile file(s.file("b.usm", bytes.first(text + 8)));
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(text + LargestText + 1));
        file.write(QByteArray("\0\0DONE", 6));
        file.close();
        takeOver(s.v, readAdventure(std::make_shared<OpenedFile>(file.fileName())));
        QCOMPARE(damagedParagraphs(s.v), QList<int>{5});
        QVERIFY_THROWS_EXCEPTION(FormatError, GetParagraphRtf(s.v, 5));
    }

    void aMissingWorkingFileIsAnErrorAndNotTheOldText()
    {
        Store s;
        s.type(5, "neuf");
        QVERIFY(QFile::remove(WorkingFiles(s.v).text(5)));
        QVERIFY_THROWS_EXCEPTION(FileError, GetParagraphRtf(s.v, 5));
        QVERIFY(textToShow(s.v, 5).isEmpty() && s.v.Damaged.at(5) == 1);
    }

    void discardingRemovesTheWorkingFilesOfThisAdventureOnly()
    {
        Store s;
        s.type(2, "x");
        s.type(9, "y");
        s.file("Dossier Usmira/b-0002.rtf", "another's");
        DiscardWorkingFiles(s.v);
        QCOMPARE(s.workingFiles(), (QStringList{"b-0002.rtf", "Session/Etat.xyz"}));
        QCOMPARE(s.v.Extracted.at(9), quint8{0});
    }
};

QTEST_MAIN(tst_paragraphStore)
#include "tst_paragraphStore.moc"
