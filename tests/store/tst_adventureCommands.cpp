#include "outil/HeadlessView.h"
#include "platform/Errors.h"
#include "store/AdventureCommands.h"
#include "store/ParagraphStore.h"
#include "store/WorkingFiles.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using Answer = Prompts::Answer;

namespace
{
AdventureBuilder wolf()
{
    return AdventureBuilder({"1: Va au 2", "2: Fin"});
}
const QString Wolf = "Le Loup.usm";
const QString Temporary = "Usmira Temporary Save File.xyz";

// The commands over a real state, with a box that nobody sees.
struct Editor : TestAdventure {
    Variables &v = variables;
    PromptRecorder prompts;
    HeadlessView view{v};
    AdventureCommands commands{v, prompts, view, view};

    QString open(const QByteArray &bytes = wolf().bytes())
    {
        const QString path = file(Wolf, bytes);
        QTEST_ASSERT(commands.OpenAdventure(path));
        return path;
    }
    // There is nothing of that name then. Some systems remove no file that is open.
    bool takeAway(const QString &path) const { return QFile::rename(path, this->path("taken")); }
    void type(int n, const QString &text)
    {
        view.LoadParg(n);
        view.editingBox().setText(text);
        v.ParagraphDirty = true;
    }
    QString shown() { return view.editingBox().text(); }
    void saveParagraph() { SaveCurParg(v, view.editingBox()); }
    void expectQuestion(Answer answer)
    {
        prompts.expect("ATTENTION : Vous n'avez pas enregistré l'aventure " + v.AdventureFileName +
                           ". Voulez-vous le faire? Sinon, vous perdrez tous les changements!",
                       "Rappel amical", Prompts::Buttons::YesNoCancel, answer);
    }
    void expectReplacing(Answer answer)
    {
        prompts.expect("Le texte du paragraphe 1 est illisible. Le remplacer par le vôtre ? Les "
                       "octets illisibles seront gardés dans le fichier Le Loup (illisible "
                       "0001).bin.",
                       "Attention", Prompts::Buttons::YesNo, answer);
    }
    void expectLeftOut(int n)
    {
        expectBug(QString("Paragraphes illisibles, non enregistrés : %1. Leurs octets sont gardés "
                          "à côté de l'aventure.")
                      .arg(n));
    }
    void expectBug(const QString &text) { prompts.expect(text, "BUG"); }
    void expectSwapFailure()
    {
        expectBug("Fichier enregistré, incapable d'échanger avec l'original.");
    }
    void expectReadFailure() { expectBug("Erreur de lecture de fichier."); }
    void expectWriteFailure() { expectBug("Erreur pendant l'écriture du fichier."); }
};
} // namespace

class tst_adventureCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editSaveAndReopen()
    {
        Editor e;
        e.prompts.expectFileDialog("Nouvelle Aventure", e.path(Wolf));
        e.commands.New();
        QCOMPARE(e.content(Wolf), AdventureBuilder().bytes());
        QCOMPARE(e.v.FilePrefix, "LL-");
        QVERIFY(!e.v.AdventureModified && e.v.AdventureOpen);
        e.type(12, "Rendez-vous au 26");
        QVERIFY(e.commands.Save());
        e.type(26, "Fin");
        QVERIFY(e.commands.Save());
        QVERIFY(e.workingFiles().isEmpty());
        QCOMPARE(GetParagraphRtf(e.v, 12), rtfOf("Rendez-vous au 26"));

        Editor other;
        other.open(e.content(Wolf));
        QCOMPARE(other.v.CurrentParagraph, qint16{26});
        QCOMPARE(other.shown(), "Fin");
        QCOMPARE(other.v.refIndex.at(12), "0026/");
    }

    void savingWithNothingChangedWritesNothing()
    {
        Editor e;
        const QString path = e.open();
        QVERIFY(e.takeAway(path));
        e.view.LoadParg(2);
        QVERIFY(e.commands.Save());
        QVERIFY(!QFile::exists(path));
    }

    void olderFileIsIndexedAndSavedInTheCurrentVersion()
    {
        Editor e;
        e.open(wolf().oldBytes(25));
        QCOMPARE(e.v.refIndex.at(1), "0002/");
        e.type(2, "Fin");
        QVERIFY(e.commands.Save());
        QCOMPARE(e.content(Wolf), wolf().current(2).bytes());
        QVERIFY(e.v.CurrentFormat);
        QCOMPARE(GetParagraphRtf(e.v, 1), rtfOf("Va au 2"));
    }

    void stoppedOpenLeavesTheOpenAdventureAsItWas()
    {
        struct Impatient : HeadlessView {
            using HeadlessView::HeadlessView;
            bool progress(int /*done*/, int /*total*/) override { return true; }
        };
        Editor e;
        e.open();
        Impatient impatient(e.v);
        AdventureCommands commands(e.v, e.prompts, e.view, impatient);
        QVERIFY(!commands.OpenAdventure(e.file("old.usm", wolf().oldBytes(25))));
        QVERIFY(e.v.AdventureFileName == Wolf && e.v.CurrentFormat);
    }

    void aFailedOpenLeavesTheOpenAdventureAsItWas()
    {
        for (const QByteArray &bytes : {wolf().bytes().chopped(3), QByteArray("Nothing yet")}) {
            Editor e;
            e.open();
            e.type(2, "autre fin");
            e.expectQuestion(Answer::Yes);
            e.prompts.expectFileDialog("Ouvrir une Aventure", e.file("bad.usm", bytes));
            e.expectReadFailure();
            e.commands.Open();
            QCOMPARE(e.v.AdventureFileName, Wolf);
            QCOMPARE(e.shown(), "autre fin");
            QCOMPARE(e.v.refIndex.at(1), "0002/");
        }
    }

    void damagedTextsAreShownEmptyAndReplacedOnlyWithLeave()
    {
        Editor e;
        e.expectBug("Paragraphes illisibles : 1.");
        e.open(wolf().rawText(1, "{\\broken").bytes());
        QVERIFY(e.v.CurrentParagraph == 1 && e.shown().isEmpty());
        e.type(1, {});
        e.saveParagraph(); // nothing was put in its place
        QVERIFY(!e.v.AdventureModified);

        e.type(1, "à moi");
        QVERIFY_THROWS_EXCEPTION(NotAllowed, e.saveParagraph());
        e.expectReplacing(Answer::No);
        QVERIFY(!e.commands.Save());
        QVERIFY(e.v.ParagraphDirty && e.shown() == "à moi");
        e.expectReplacing(Answer::No);
        e.expectQuestion(Answer::Cancel);
        QVERIFY(!e.commands.LeaveAdventure());
        e.expectReplacing(Answer::Yes);
        QVERIFY(e.commands.Save());
        QCOMPARE(e.content("Le Loup (illisible 0001).bin"), "{\\broken");
        QCOMPARE(GetParagraphRtf(e.v, 1), rtfOf("à moi"));
    }

    void aSaveLeavesDamagedTextsOutAndKeepsTheirBytes()
    {
        Editor e;
        e.expectBug("Paragraphes illisibles : 1.");
        e.open(wolf().rawText(1, "autre chose").bytes());
        e.type(2, "deux");
        e.expectLeftOut(1);
        QVERIFY(e.commands.Save());
        QCOMPARE(e.content("Le Loup (illisible 0001).bin"), "autre chose");
        QCOMPARE(e.v.Written.at(1), quint8{0});
        QCOMPARE(GetParagraphRtf(e.v, 2), rtfOf("deux"));

        // A working file that somebody took away has no bytes: the whole adventure is kept.
        const QByteArray saved = e.content(Wolf);
        e.type(2, "trois");
        e.saveParagraph();
        QVERIFY(QDir(e.v.WorkingFolder).removeRecursively());
        e.expectLeftOut(2);
        QVERIFY(e.commands.Save());
        QCOMPARE(e.content("Le Loup (autre version).usm"), saved);
        QVERIFY(!QFile::exists(e.path("Le Loup (illisible 0002).bin")));
    }

    // A folder of its name stands for every file that is there and does not let itself be read.
    void workingFileThatCannotBeReadIsMovedAside()
    {
        Editor e;
        e.open();
        const QString working = WorkingFiles(e.v).text(2);
        QVERIFY(QDir().mkpath(working + "/mots"));
        e.v.Extracted.at(2) = 1;
        e.type(1, "un");
        const QString aside = WorkingFiles(e.v).newRecoveryFolder(QDateTime::currentDateTime());
        e.expectBug("Paragraphes illisibles, non enregistrés : 2. Leurs fichiers de travail sont "
                    "rangés dans le dossier " +
                    aside + ".");
        QVERIFY(e.commands.Save());
        QVERIFY(QDir(aside + u'/' + QFileInfo(working).fileName() + "/mots").exists());
        QVERIFY(!e.v.AdventureModified && !QFileInfo::exists(working));
        QCOMPARE(QDir(e.v.WorkingFolder + "..").entryList({"Le Loup*"}), QStringList{Wolf});
    }

    void noAndThenNoFileShowsTheAdventureAsLastSaved()
    {
        Editor e;
        e.open();
        e.type(2, "autre fin au 9");
        e.commands.Save();
        e.type(2, "jetée");
        e.saveParagraph();
        e.type(7, "jetée aussi");
        e.expectQuestion(Answer::No);
        e.prompts.expectFileDialog("Ouvrir une Aventure", {});
        e.commands.Open();
        QVERIFY(e.workingFiles().isEmpty());
        QVERIFY(e.v.Written.at(7) == 0 && e.v.HighestWritten == 2 && !e.v.AdventureModified);
        QCOMPARE(e.shown(), "autre fin au 9");
        QCOMPARE(e.v.refIndex.at(2), "0009/");
    }

    void nonSetsTheWorkAsideWhenTheAdventureIsGone()
    {
        Editor e;
        const QString path = e.open();
        e.type(2, "autre fin");
        QVERIFY(e.takeAway(path));
        e.expectQuestion(Answer::No);
        const QString folder = WorkingFiles(e.v).newRecoveryFolder(QDateTime::currentDateTime());
        e.expectBug("L'aventure Le Loup.usm ne peut plus être relue. Les paragraphes non "
                    "enregistrés sont rangés dans le dossier " +
                    folder + u'.');
        QVERIFY(e.commands.LeaveAdventure());
        QCOMPARE(QDir(folder).entryList(QDir::Files), (QStringList{"Etat.xyz", "LL-0002.rtf"}));
    }

    void aFailedSwapKeepsTheWorkAndCanBeTriedAgain()
    {
        Editor e;
        const QString path = e.open();
        e.type(2, "autre fin");
        QVERIFY(e.takeAway(path) && QDir().mkpath(path + "/full"));
        e.expectSwapFailure();
        QVERIFY(!e.commands.Save());
        QCOMPARE(e.workingFiles(), (QStringList{"LL-0002.rtf", Temporary, "Session/Etat.xyz"}));
        QVERIFY(e.v.AdventureModified);
        QCOMPARE(GetParagraphRtf(e.v, 1), rtfOf("Va au 2"));
        QVERIFY(QDir(path).removeRecursively());
        QVERIFY(e.commands.Save());
        QVERIFY(e.workingFiles().isEmpty());
        QVERIFY(e.content(Wolf).contains("autre fin"));
    }

    void withoutAWorkingFolderOneCanSaveAndLeave_data()
    {
        addTable<QString, QString, Answer>({"place", "below", "answer"},
                                           {{"made again", "", "", Answer::Yes},
                                            {"a file", "Dossier Usmira", "", Answer::Yes},
                                            {"below a file", "a", "Dossier/", Answer::Yes},
                                            {"a file, left", "Dossier Usmira", "", Answer::No}});
    }
    void withoutAWorkingFolderOneCanSaveAndLeave()
    {
        QFETCH(QString, place);
        QFETCH(QString, below);
        QFETCH(Answer, answer);
        Editor e;
        e.open();
        QVERIFY(QDir(e.v.WorkingFolder).removeRecursively());
        if (!place.isEmpty()) {
            e.v.WorkingFolder = e.file(place, "no folder") + u'/' + below;
            e.expectWriteFailure();
        }
        e.type(2, "autre fin au 7");
        e.expectQuestion(answer);
        QVERIFY(e.commands.LeaveAdventure());
        const bool saved = answer == Answer::Yes;
        QCOMPARE(e.content(Wolf).contains("autre fin au 7"), saved);
        QCOMPARE(e.v.refIndex.at(2), saved ? QString("0007/") : QString());
        QVERIFY(!e.v.ParagraphDirty && !e.v.AdventureModified && e.v.Extracted.at(2) == 0);
        QVERIFY(!QFile::exists(e.path(Temporary)));
    }

    void anotherProgramsVersionIsKeptBeforeItIsReplaced_data()
    {
        QTest::addColumn<bool>("replaced");
        QTest::addColumn<bool>("inPlace"); // what was opened is gone then
        QTest::newRow("no") << false << false;
        QTest::newRow("yes") << true << false;
        QTest::newRow("bytes written over") << true << true;
    }
    void anotherProgramsVersionIsKeptBeforeItIsReplaced()
    {
        QFETCH(bool, replaced);
        QFETCH(bool, inPlace);
        Editor e;
        const QString path = e.open();
        e.type(2, "autre fin");
        QVERIFY(inPlace || e.takeAway(path));
        e.file(Wolf, "of another program");
        e.prompts.expect("Un autre programme a modifié l'aventure Le Loup.usm depuis son "
                         "ouverture. Voulez-vous la remplacer par la vôtre ? L'autre version "
                         "sera gardée sous le nom Le Loup (autre version).usm.",
                         "Attention !", Prompts::Buttons::YesNo,
                         replaced ? Answer::Yes : Answer::No);
        if (!replaced)
            e.expectSwapFailure();
        if (inPlace)
            e.expectLeftOut(1);
        QCOMPARE(e.commands.Save(), replaced);
        QCOMPARE(e.v.AdventureModified, !replaced);
        QCOMPARE(e.content(replaced ? "Le Loup (autre version).usm" : Wolf), "of another program");
        QCOMPARE(QDir(QFileInfo(path).path()).entryList({"Le Loup*"}).size(), replaced ? 2 : 1);
    }

    void newOverAnExistingFileReplacesItOnlyAtTheSwap()
    {
        Editor e;
        const QString path = e.file(Wolf, wolf().bytes());
        QVERIFY(QDir(e.v.WorkingFolder).mkdir(Temporary) && QDir().mkdir(e.path(Temporary)));
        e.expectWriteFailure();
        QVERIFY(e.commands.NewAdventure(path));
        QCOMPARE(e.content(Wolf), wolf().bytes());
        QVERIFY(e.v.AdventureModified);
        QVERIFY(QDir().rmdir(e.path(Temporary)));
        QVERIFY(e.commands.Save());
        QCOMPARE(e.content(Wolf), AdventureBuilder().bytes());
    }
};

QTEST_MAIN(tst_adventureCommands)
#include "tst_adventureCommands.moc"
