#include "outil/HeadlessView.h"
#include "platform/Errors.h"
#include "store/AdventureCommands.h"
#include "store/ParagraphStore.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace
{
// The commands over a real state, with a box that nobody sees.
struct Editor {
    TestAdventure adventure;
    Variables &v = adventure.variables;
    PromptRecorder prompts;
    HeadlessView view{v};
    AdventureCommands commands{v, prompts, view, view};

    QString file(const QString &name, const AdventureBuilder &builder) const
    {
        return adventure.file(name, builder.bytes());
    }
    void type(int n, const QString &text)
    {
        view.LoadParg(n);
        view.editingBox().setText(text);
        v.ParagraphDirty = true;
    }
    QString shown() { return view.editingBox().text(); }
    void expectQuestion(Prompts::Answer answer)
    {
        prompts.expect(
            QStringLiteral("ATTENTION : Vous n'avez pas enregistré l'aventure ") +
                v.AdventureFileName +
                QStringLiteral(". Voulez-vous le faire? Sinon, vous perdrez tous les changements!"),
            QStringLiteral("Rappel amical"), Prompts::Buttons::YesNoCancel, answer);
    }
    void expectSwapFailure()
    {
        prompts.expect(QStringLiteral("Fichier enregistré, incapable d'échanger avec l'original."),
                       QStringLiteral("BUG"));
    }
    void expectReadFailure()
    {
        prompts.expect(QStringLiteral("Erreur de lecture de fichier."), QStringLiteral("BUG"));
    }
    void expectWriteFailure()
    {
        prompts.expect(QStringLiteral("Erreur pendant l'écriture du fichier."),
                       QStringLiteral("BUG"));
    }
};

AdventureBuilder wolf()
{
    return AdventureBuilder({QStringLiteral("1: Va au 2"), QStringLiteral("2: Fin")});
}
const QString Wolf = QStringLiteral("Le Loup.usm");
} // namespace

class tst_adventureCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newAdventureIsWrittenAtOnce()
    {
        Editor e;
        e.prompts.expectFileDialog(QStringLiteral("Nouvelle Aventure"), e.adventure.path(Wolf));
        e.commands.New();
        QCOMPARE(e.adventure.content(Wolf), AdventureBuilder().bytes());
        QCOMPARE(e.v.AdventureFileName, Wolf);
        QCOMPARE(e.v.FilePrefix, QStringLiteral("LL-"));
        QVERIFY(!e.v.AdventureModified && e.v.AdventureOpen);
        QVERIFY(e.adventure.workingFiles().isEmpty());
    }

    void editSaveAndReopen()
    {
        Editor e;
        QVERIFY(e.commands.NewAdventure(e.adventure.path(Wolf)));
        e.type(12, QStringLiteral("Rendez-vous au 26"));
        QVERIFY(e.commands.Save());
        e.type(26, QStringLiteral("Fin"));
        QVERIFY(e.commands.Save());
        QVERIFY(e.adventure.workingFiles().isEmpty());
        QCOMPARE(GetParagraphRtf(e.v, 12), rtfOf(QStringLiteral("Rendez-vous au 26")));

        Editor other;
        const QString copy = other.adventure.file(Wolf, e.adventure.content(Wolf));
        QVERIFY(other.commands.OpenAdventure(copy));
        QCOMPARE(other.v.CurrentParagraph, qint16{26});
        QCOMPARE(other.shown(), QStringLiteral("Fin"));
        QCOMPARE(other.v.refIndex.at(12), QStringLiteral("0026/"));
    }

    void savingWithNothingChangedWritesNothing()
    {
        Editor e;
        const QString path = e.file(Wolf, wolf());
        QVERIFY(e.commands.OpenAdventure(path));
        QFile::remove(path);
        e.view.LoadParg(2);
        QVERIFY(e.commands.Save());
        QVERIFY(!QFile::exists(path));
    }

    void olderFileIsIndexedAndSavedInTheCurrentVersion()
    {
        Editor e;
        const QString path = e.adventure.file(Wolf, wolf().oldBytes(25));
        QVERIFY(e.commands.OpenAdventure(path));
        QCOMPARE(e.v.refIndex.at(1), QStringLiteral("0002/"));
        e.type(2, QStringLiteral("Fin"));
        QVERIFY(e.commands.Save());
        QCOMPARE(e.adventure.content(Wolf), wolf().current(2).bytes());
        QVERIFY(e.v.CurrentFormat);
        QCOMPARE(GetParagraphRtf(e.v, 1), rtfOf(QStringLiteral("Va au 2")));
    }

    void stoppedOpenLeavesTheOpenAdventureAsItWas()
    {
        struct Impatient : HeadlessView {
            using HeadlessView::HeadlessView;
            bool progress(int /*done*/, int /*total*/) override { return true; }
        };
        Editor e;
        QVERIFY(e.commands.OpenAdventure(e.file(Wolf, wolf())));
        Impatient impatient(e.v);
        AdventureCommands commands(e.v, e.prompts, e.view, impatient);
        QVERIFY(!commands.OpenAdventure(
            e.adventure.file(QStringLiteral("old.usm"), wolf().oldBytes(25))));
        QCOMPARE(e.v.AdventureFileName, Wolf);
        QVERIFY(e.v.CurrentFormat);
    }

    void aFailedOpenLeavesTheOpenAdventureAsItWas_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("cut short") << wolf().bytes().chopped(3);
        QTest::newRow("no adventure") << QByteArray("Nothing yet");
        QTest::newRow("empty") << QByteArray();
    }
    void aFailedOpenLeavesTheOpenAdventureAsItWas()
    {
        QFETCH(QByteArray, bytes);
        Editor e;
        QVERIFY(e.commands.OpenAdventure(e.file(Wolf, wolf())));
        e.type(2, QStringLiteral("autre fin"));
        const QString bad = e.adventure.file(QStringLiteral("bad.usm"), bytes);
        e.expectQuestion(Prompts::Answer::Yes);
        e.prompts.expectFileDialog(QStringLiteral("Ouvrir une Aventure"), bad);
        e.expectReadFailure();
        e.commands.Open();
        QCOMPARE(e.v.AdventureFileName, Wolf);
        QCOMPARE(e.shown(), QStringLiteral("autre fin"));
        QCOMPARE(e.v.refIndex.at(1), QStringLiteral("0002/"));
        e.expectReadFailure();
        QVERIFY(!e.commands.OpenAdventure(e.adventure.path(QStringLiteral("missing.usm"))));
        QCOMPARE(e.v.AdventureFileName, Wolf);
    }

    void aDamagedCurrentParagraphIsReportedAndNotShown()
    {
        Editor e;
        const QString path = e.file(Wolf, wolf().rawText(1, "{\\broken").current(1));
        e.expectReadFailure();
        QVERIFY(e.commands.OpenAdventure(path));
        QCOMPARE(e.v.CurrentParagraph, qint16{2});
        QCOMPARE(e.shown(), QStringLiteral("Fin"));
    }

    void cancelAtTheQuestionKeepsEverything()
    {
        Editor e;
        QVERIFY(e.commands.OpenAdventure(e.file(Wolf, wolf())));
        e.type(2, QStringLiteral("autre fin"));
        e.expectQuestion(Prompts::Answer::Cancel);
        e.commands.New();
        QCOMPARE(e.adventure.workingFiles(), QStringList{QStringLiteral("LL-0002.rtf")});
        QVERIFY(e.v.AdventureModified);
    }

    void noAndThenNoFileShowsTheAdventureAsLastSaved()
    {
        Editor e;
        QVERIFY(e.commands.OpenAdventure(e.file(Wolf, wolf())));
        e.type(2, QStringLiteral("autre fin au 9"));
        e.commands.Save();
        e.type(2, QStringLiteral("jetée"));
        SaveCurParg(e.v, e.view.editingBox());
        e.type(7, QStringLiteral("jetée aussi"));
        e.expectQuestion(Prompts::Answer::No);
        e.prompts.expectFileDialog(QStringLiteral("Ouvrir une Aventure"), QString());
        e.commands.Open();
        QVERIFY(e.adventure.workingFiles().isEmpty());
        QCOMPARE(e.v.Written.at(7), quint8{0});
        QCOMPARE(e.v.HighestWritten, qint16{2});
        QCOMPARE(e.shown(), QStringLiteral("autre fin au 9"));
        QCOMPARE(e.v.refIndex.at(2), QStringLiteral("0009/"));
        QVERIFY(!e.v.AdventureModified);
    }

    void aFailedSwapKeepsTheWorkAndCanBeTriedAgain()
    {
        Editor e;
        const QString path = e.file(Wolf, wolf());
        QVERIFY(e.commands.OpenAdventure(path));
        e.type(2, QStringLiteral("autre fin"));
        QVERIFY(QFile::remove(path));
        QVERIFY(QDir().mkpath(path + QStringLiteral("/full")));
        e.expectSwapFailure();
        QVERIFY(!e.commands.Save());
        QCOMPARE(e.adventure.workingFiles(),
                 (QStringList{QStringLiteral("LL-0002.rtf"),
                              QStringLiteral("Usmira Temporary Save File.xyz")}));
        QVERIFY(e.v.AdventureModified);
        QCOMPARE(GetParagraphRtf(e.v, 1), rtfOf(QStringLiteral("Va au 2")));
        QVERIFY(QDir(path).removeRecursively());
        QVERIFY(e.commands.Save());
        QVERIFY(e.adventure.workingFiles().isEmpty());
        QVERIFY(e.adventure.content(Wolf).contains("autre fin"));
    }

    void aFolderThatCannotBeWrittenKeepsTheParagraphDirty()
    {
        Editor e;
        QVERIFY(e.commands.OpenAdventure(e.file(Wolf, wolf())));
        QVERIFY(QDir(e.v.WorkingFolder).removeRecursively());
        e.type(2, QStringLiteral("autre fin"));
        e.expectWriteFailure();
        e.commands.New();
        QVERIFY(e.v.ParagraphDirty);
        QCOMPARE(e.v.AdventureFileName, Wolf);
    }

    void anotherProgramsVersionIsKeptBeforeItIsReplaced_data()
    {
        QTest::addColumn<Prompts::Answer>("answer");
        QTest::newRow("Oui") << Prompts::Answer::Yes;
        QTest::newRow("Non") << Prompts::Answer::No;
    }
    void anotherProgramsVersionIsKeptBeforeItIsReplaced()
    {
        QFETCH(Prompts::Answer, answer);
        Editor e;
        const QString path = e.file(Wolf, wolf());
        QVERIFY(e.commands.OpenAdventure(path));
        QVERIFY(QFile::remove(path));
        e.adventure.file(Wolf, "of another program");
        e.type(2, QStringLiteral("autre fin"));
        e.prompts.expect(
            QStringLiteral("Un autre programme a modifié l'aventure Le Loup.usm depuis son "
                           "ouverture. Voulez-vous la remplacer par la vôtre ? L'autre version "
                           "sera gardée sous le nom Le Loup (autre version).usm."),
            QStringLiteral("Attention !"), Prompts::Buttons::YesNo, answer);
        const bool replaced = answer == Prompts::Answer::Yes;
        if (!replaced)
            e.expectSwapFailure();
        QCOMPARE(e.commands.Save(), replaced);
        QCOMPARE(e.v.AdventureModified, !replaced);
        const QString kept = replaced ? QStringLiteral("Le Loup (autre version).usm") : Wolf;
        QCOMPARE(e.adventure.content(kept), QByteArray("of another program"));
    }

    void newOverAnExistingFileReplacesItOnlyAtTheSwap()
    {
        Editor e;
        const QString path = e.file(Wolf, wolf());
        QVERIFY(QDir(e.v.WorkingFolder).removeRecursively());
        e.expectWriteFailure();
        QVERIFY(e.commands.NewAdventure(path));
        QCOMPARE(e.adventure.content(Wolf), wolf().bytes());
        QVERIFY(e.v.AdventureModified);
        QVERIFY(QDir().mkpath(e.v.WorkingFolder));
        QVERIFY(e.commands.Save());
        QCOMPARE(e.adventure.content(Wolf), AdventureBuilder().bytes());
    }
};

QTEST_MAIN(tst_adventureCommands)
#include "tst_adventureCommands.moc"
