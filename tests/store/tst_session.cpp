#include "outil/HeadlessView.h"
#include "renumber/RenumberCommands.h"
#include "renumber/history/HistoryCommands.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureChanges.h"
#include "store/ParagraphStore.h"
#include "store/ParagraphTexts.h"
#include "store/ParagraphTransaction.h"
#include "store/Session.h"
#include "store/SessionRecovery.h"
#include "store/SummedLines.h"
#include "store/TypedSnapshot.h"
#include "store/WorkingFiles.h"
#include "store/extras/ExtrasBlock.h"
#include "support/AdventureBuilder.h"
#include "support/FaultyCalls.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>

using FaultyCalls::Fault;

namespace
{
// Answers every question alike and remembers what was said.
class Answering : public PromptRecorder
{
public:
    explicit Answering(Answer given) : answer(given) {}
    Answer message(const QString &text, const QString &title, Buttons buttons) override
    {
        said.append(title + u'|' + text);
        return buttons == Buttons::Ok ? Answer::Ok : answer;
    }
    Answer answer;
    QStringList said;
};

// A program on an adventure, without a window.
struct Editor {
    explicit Editor(const Variables &variables, Prompts::Answer answer = Prompts::Answer::Yes)
        : v(variables), prompts(answer), view(v), commands(v, prompts, view, view)
    {
    }

    // What the start of the program does.
    void start()
    {
        finishLeftChange(v.WorkingFolder, prompts);
        if (const auto work = offerUnsavedWork(v.WorkingFolder, prompts))
            commands.OpenUnsaved(*work);
    }
    void type(int n, const QString &text)
    {
        view.LoadParg(n);
        view.editingBox().setText(text);
        v.ParagraphDirty = true;
    }
    void save(int n, const QString &text)
    {
        type(n, text);
        SaveCurParg(v, view.editingBox());
    }

    // All that an author could lose, the box included.
    QString state()
    {
        QString all = v.TargetPhrase + QString::number(v.LowestWritten) + u'.' +
                      QString::number(v.HighestWritten) + bytesOf(v.extras).toHex();
        for (int n = 0; n <= 12; ++n) {
            const bool onScreen = v.ParagraphDirty && n == v.CurrentParagraph;
            const QString text =
                onScreen ? view.editingBox().text() : rtfToPlainText(GetParagraphRtf(v, n));
            all += QStringLiteral("|%1 %2 %3 %4 %5")
                       .arg(n)
                       .arg(text.isEmpty() ? 0 : 1)
                       .arg(v.Unmixable.at(n))
                       .arg(onScreen ? QString() : v.refIndex.at(n), text);
        }
        return all;
    }

    Variables v;
    Answering prompts;
    HeadlessView view;
    AdventureCommands commands;
};

// An adventure with some paragraphs edited, as a program that is still running has it.
struct Scene : TestAdventure {
    Scene() : path(file("Le Loup.usm", bytes())), editor(std::make_unique<Editor>(variables))
    {
        editor->commands.OpenAdventure(path);
        editor->save(3, "trois au 5");
        editor->save(6, "six");
        editor->save(2, {});
        setFixed(editor->v, 4, true);
        AdventureExtras extras;
        extras.starts = {3, 9};
        changeExtras(editor->v, extras);
    }
    static QByteArray bytes()
    {
        return AdventureBuilder({"2: deux", "3!: trois", "4: quatre au 2", "9: neuf"}).bytes();
    }
    QString working(const QString &name) const { return path_("Dossier Usmira/" + name); }
    QString path_(const QString &name) const { return TestAdventure::path(name); }
    // The next program.
    Editor restarted(Prompts::Answer answer = Prompts::Answer::Yes)
    {
        editor.reset(); // with all that it holds
        return Editor(variables, answer);
    }
    QStringList aside() const
    {
        const QDir folder(variables.WorkingFolder);
        const QStringList folders = folder.entryList({"Réc*"}, QDir::Dirs);
        return folders.isEmpty() ? QStringList()
                                 : QDir(folder.filePath(folders.first())).entryList(QDir::Files);
    }

    const QString path;
    std::unique_ptr<Editor> editor;
};

using Act = std::function<void(Scene &)>;

void exchange(Scene &s)
{
    Editor &editor = *s.editor;
    RenumberCommands(editor.v, editor.prompts, editor.view).Swap(3, 6);
    editor.save(9, "neuf au 6, depuis");
}
void takeBack(Scene &s)
{
    HistoryCommands(s.editor->v, s.editor->prompts, s.editor->view).takeBack();
}
void redo(Scene &s)
{
    HistoryCommands(s.editor->v, s.editor->prompts, s.editor->view).redo();
}

// Runs action in a process that is killed at its call-th file call. False: it came to its end.
template <typename Action> bool killed(const Scene &scene, int call, Action action)
{
    const pid_t child = ::fork();
    if (child == 0) {
        FaultyCalls::arm(QFileInfo(scene.path).path(), Fault::Kill, call);
        action();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == FaultyCalls::Killed;
}

const QByteArray Valid = [] {
    SessionState state;
    state.adventurePath = "/tmp/Le Loup é%.usm";
    state.opened = {12, QByteArray(64, 'a')};
    state.saving = {13, QByteArray(64, '0')};
    state.targetPhrase = " aü ";
    state.highest = 2000;
    for (const std::size_t n : {0U, 1U, 1999U, 2000U})
        state.written.set(n);
    state.extracted.set(2000);
    state.unmixable.set(7);
    state.extras = QByteArray(64, 'e');
    state.emptied = {3, 12};
    state.done = {2, 13};
    state.undone = {9};
    state.next = 3;
    return sessionStateBytes(state);
}();
} // namespace

class tst_session : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasUnsavedComesBack()
    {
        Scene scene;
        scene.editor->type(9, "neuf, à la");
        keepBox(scene.editor->v, scene.editor->view.editingBox());
        const QString before = scene.editor->state();
        Editor next = scene.restarted();
        next.start();
        QCOMPARE(next.state(), before);
        QVERIFY(next.v.AdventureModified && next.v.CurrentParagraph == 9);
        const QString folder = WorkingFiles(next.v).newRecoveryFolder(QDateTime::currentDateTime());
        QCOMPARE(next.prompts.said,
                 QStringList("Rescapés|Usmira s'est arrêté brusquement. Paragraphes non "
                             "enregistrés de l'aventure Le Loup.usm : 4. Voulez-vous les "
                             "récupérer ? Sinon, ils seront rangés dans le dossier " +
                             folder + u'.'));
        QVERIFY(next.commands.Save());
        QVERIFY(scene.workingFiles().isEmpty());
        Editor last = scene.restarted();
        last.start();
        QVERIFY(last.prompts.said.isEmpty() && !last.v.AdventureOpen);
        last.commands.OpenAdventure(scene.path);
        QCOMPARE(last.state(), next.state());
    }

    void whatIsNotWantedOrDoesNotFitIsSetAside_data()
    {
        const auto spoil = [](const QString &name, const QByteArray &bytes) {
            return Act([name, bytes](Scene &s) { s.file(name, bytes); });
        };
        const QString state = "Dossier Usmira/Session/Etat.xyz";
        const QStringList texts{"LL-0003.rtf", "LL-0006.rtf"};
        const QString changed = "Songez-y|L'aventure Le Loup.usm a changé ou disparu depuis "
                                "l'arrêt brusque d'Usmira. Les paragraphes non enregistrés sont "
                                "rangés dans le dossier ";
        const QString left = "Songez-y|Des fichiers de travail";
        addTable<Act, QString, QStringList>(
            {"spoil", "said", "aside"},
            {{"not wanted", [](Scene &) {}, "Rescapés|Usmira", QStringList("Etat.xyz") + texts},
             {"another adventure", spoil("Le Loup.usm", AdventureBuilder({"1: un"}).bytes()),
              changed, QStringList("Etat.xyz") + texts},
             {"no adventure", [](Scene &s) { QFile::remove(s.path); }, changed,
              QStringList("Etat.xyz") + texts},
             {"no state", [](Scene &s) { QFile::remove(s.working("Session/Etat.xyz")); }, left,
              texts},
             {"state cut off", spoil(state, "Usmira Etat 1\r\n"), left,
              QStringList("Etat.xyz") + texts},
             {"100 MB", spoil(state, QByteArray(100'000'000, 'x')), left,
              QStringList("Etat.xyz") + texts}});
    }
    void whatIsNotWantedOrDoesNotFitIsSetAside()
    {
        QFETCH(Act, spoil);
        QFETCH(QString, said);
        QFETCH(QStringList, aside);
        Scene scene;
        const QString extras = WorkingFiles(scene.variables).allExtras().value(0);
        aside.prepend(QFileInfo(extras).fileName());
        spoil(scene);
        Editor next = scene.restarted(Prompts::Answer::No);
        next.start();
        QVERIFY(next.prompts.said.size() == 1 && !next.v.AdventureOpen);
        QVERIFY2(next.prompts.said.first().startsWith(said), qPrintable(next.prompts.said.first()));
        QCOMPARE(scene.aside(), aside);
        QCOMPARE(scene.workingFiles().size(), 1); // that folder
        next.prompts.said.clear();
        next.start();
        QVERIFY(next.prompts.said.isEmpty());
    }

    void whatTheSessionDoesNotKnowIsSetAside()
    {
        Scene scene;
        const QString before = scene.editor->state();
        for (const auto name : {"x-0003.rtf", "LL-0007.rtf", "Session/Saisie-0009.rtf"})
            scene.file(QStringLiteral("Dossier Usmira/") + name, "{\\rtf1 {\\b cut} ");
        Editor next = scene.restarted();
        next.start();
        QCOMPARE(next.state(), before);
        QCOMPARE(scene.aside(), (QStringList{"LL-0007.rtf", "Saisie-0009.rtf", "x-0003.rtf"}));
        QCOMPARE(next.prompts.said.size(), 2);
    }

    void aCleanEndLeavesNothing()
    {
        for (const Prompts::Answer answer : {Prompts::Answer::Yes, Prompts::Answer::No}) {
            Scene scene;
            Editor &editor = *scene.editor;
            editor.prompts.answer = answer;
            editor.type(9, "encore");
            keepBox(editor.v, editor.view.editingBox());
            QVERIFY(editor.commands.LeaveAdventure());
            QVERIFY(scene.workingFiles().isEmpty());
        }
    }

    void aKillLeavesBeforeOrAfter_data()
    {
        addTable<Act>(
            {"act"}, {{"take a command back", &takeBack},
                      {"redo a command", &redo},
                      {"save a paragraph", [](Scene &s) { s.editor->save(9, "autrement au 3"); }},
                      {"save a new paragraph", [](Scene &s) { s.editor->save(11, "onze"); }},
                      {"save one again", [](Scene &s) { s.editor->save(3, "encore au 6"); }},
                      {"empty a paragraph", [](Scene &s) { s.editor->save(9, {}); }},
                      {"empty a working file", [](Scene &s) { s.editor->save(6, {}); }},
                      {"save the adventure", [](Scene &s) { s.editor->commands.Save(); }},
                      {"fix a paragraph", [](Scene &s) { setFixed(s.editor->v, 9, true); }},
                      {"another phrase",
                       [](Scene &s) { setTargetPhrase(s.editor->v, "ici", s.editor->v.refIndex); }},
                      {"change many", [](Scene &s) {
                           ParagraphTransaction transaction(s.editor->v, {"Commande", {}});
                           transaction.widenRange(0, 12);
                           transaction.change({3, 12, rtfOf("trois, devenu 12"), {}, true});
                           transaction.change({9, 3, rtfOf("neuf au 12"), "0012/", false});
                           transaction.empty(6, false);
                           transaction.commit();
                       }}});
    }
    void aKillLeavesBeforeOrAfter()
    {
        if (FaultyCalls::OutOfReach)
            QSKIP("plain calls hide the faults");
        QFETCH(Act, act);
        const QByteArray name = QTest::currentDataTag();
        const auto prepare = [&name](Scene &scene) {
            if (name == "take a command back" || name == "redo a command")
                exchange(scene);
            if (name == "redo a command")
                takeBack(scene);
        };
        QString before, after;
        {
            Scene scene;
            prepare(scene);
            before = scene.editor->state();
            act(scene);
            after = scene.editor->state();
        }
        if (qstrcmp(QTest::currentDataTag(), "another phrase") == 0)
            after.replace("0005/", "").replace("0002/", ""); // the index is read anew
        int undone = 0;
        int done = 0;
        for (int call = 1;; ++call) {
            Scene scene;
            prepare(scene);
            if (!killed(scene, call, [&] { act(scene); }))
                break;
            // The next starts are killed as well, until one comes to its end.
            for (int again = 1;; again += FaultyCalls::Stride)
                if (!killed(scene, again, [&] { scene.restarted().start(); }))
                    break;
            Editor next = scene.restarted();
            next.start();
            if (next.v.ParagraphDirty) // it was in the box
                SaveCurParg(next.v, next.view.editingBox());
            if (!next.v.AdventureOpen) // it had been saved
                next.commands.OpenAdventure(scene.path);
            const bool isBefore = next.state() == before;
            QVERIFY2(
                isBefore || next.state() == after,
                qPrintable(QString("%1: %2\n%3\n%4").arg(call).arg(next.state(), before, after)));
            ++(isBefore ? undone : done);
            QVERIFY(scene.aside().isEmpty());
            next.commands.Save();
            forgetHistory(next.v);
            QVERIFY2(scene.workingFiles().isEmpty(), qPrintable(scene.workingFiles().join(u' ')));
        }
        QVERIFY2(before == after || (undone > 0 && done + undone > 3), "no call was reached");
    }

    void aFailedCallOfTakingBackLeavesBeforeOrAfter()
    {
        if (FaultyCalls::OutOfReach)
            QSKIP("plain calls hide the faults");
        for (const Act act : {&takeBack, &redo}) {
            int undone = 0;
            for (int call = 1, calls = 1; call <= calls; ++call) {
                Scene scene;
                exchange(scene);
                const QString exchanged = scene.editor->state();
                takeBack(scene);
                const QString back = scene.editor->state();
                if (*act.target<void (*)(Scene &)>() == &takeBack)
                    redo(scene);
                const QString before = scene.editor->state();
                const QString after = before == back ? exchanged : back;
                FaultyCalls::arm(QFileInfo(scene.path).path(), Fault::FailOnce, call);
                act(scene);
                calls = std::max(calls, FaultyCalls::disarm());
                const QString left = scene.editor->state();
                QVERIFY(left == before || left == after);
                undone += left == before ? 1 : 0;
                // The next program goes on from there.
                Editor next = scene.restarted();
                next.start();
                QCOMPARE(next.state(), left);
                HistoryCommands history(next.v, next.prompts, next.view);
                if (next.v.History->nextToTakeBack() && history.takeBack())
                    QCOMPARE(next.state(), back);
            }
            QVERIFY2(undone > 3, "the calls were not reached");
        }
    }

    void whatCanBeTakenBackComesBackAfterACrash()
    {
        Scene scene;
        const QString before = scene.editor->state();
        exchange(scene);
        scene.editor->save(9, "neuf");
        scene.editor->commands.Save();
        QCOMPARE(scene.workingFiles(), QStringList("Session/Annuler-0001.xyz"));
        scene.editor->save(11, "onze");
        Editor next = scene.restarted();
        next.start();
        QVERIFY(next.v.History->nextToTakeBack() && !next.v.History->isWhole());
        HistoryCommands(next.v, next.prompts, next.view).takeBack();
        next.save(11, {});
        QCOMPARE(rtfToPlainText(GetParagraphRtf(next.v, 3)), "trois au 5");
        QCOMPARE(rtfToPlainText(GetParagraphRtf(next.v, 6)), "six");
        Editor last = scene.restarted(Prompts::Answer::No);
        last.start();
        QVERIFY(scene.workingFiles().filter("Session").isEmpty());
    }

    void theBoxIsKeptOnceItCanBe()
    {
        Scene scene;
        Editor &editor = *scene.editor;
        TypedSnapshot snapshot(editor.v, editor.view.editingBox());
        const QString typed = WorkingFiles(editor.v).typed(9);
        editor.type(9, "un");
        snapshot.follow();
        QDir().mkpath(typed + "/in the way");
        int failures = 0;
        QObject::connect(&snapshot, &TypedSnapshot::failed, &snapshot, [&] { ++failures; });
        snapshot.take();
        snapshot.take();
        QCOMPARE(failures, 1);
        QDir(typed).removeRecursively();
        snapshot.take();
        QVERIFY(QFileInfo(typed).isFile());
        SaveCurParg(editor.v, editor.view.editingBox());
        QVERIFY(!QFile::exists(typed));
        snapshot.follow();
        snapshot.take(); // there is nothing to keep
        QVERIFY(!QFile::exists(typed));
    }

    void aStateIsWholeOrNone()
    {
        const std::optional<SessionState> state = sessionStateOf(Valid);
        QVERIFY(state && sessionStateBytes(*state) == Valid);
        QVERIFY(state->written.test(2000) && !state->written.test(2) && state->unmixable.test(7));
        for (qsizetype length = 0; length < Valid.size(); ++length)
            QVERIFY(!sessionStateOf(QByteArrayView(Valid).first(length)));
        for (qsizetype at = 0; at < Valid.size(); ++at) {
            QByteArray flipped = Valid;
            flipped[at] = static_cast<char>(flipped.at(at) ^ 1);
            QVERIFY(!sessionStateOf(flipped));
        }
    }

    void aStateFromElsewhereIsNone_data()
    {
        addTable<QByteArray, QByteArray>(
            {"was", "is"}, {{"nothing changed", "", ""},
                            {"relative path", "%2Ftmp%2F", ""},
                            {"folder", "Le%20Loup%20%C3%A9%25.usm", ""},
                            {"NUL", "%C3%A9", "%00"},
                            {"no UTF-8", "%C3%A9", "%E9"},
                            {"number above 2000", "range 0001 2000", "range 0001 2001"},
                            {"range turned round", "range 0001 2000", "range 2000 0001"},
                            {"negative", "current 0001", "current -001"},
                            {"short number", "current 0001", "current 1"},
                            {"size below zero", "opened 12", "opened -12"},
                            {"short sum", "aaaa\r\n", "\r\n"},
                            {"no sum", "aaaa\r\n", "aaag\r\n"},
                            {"extracted, not written", "\r\nwritten ", "\r\nwritten 0"},
                            {"emptied twice", "emptied 0003 0012", "emptied 0003 0003"},
                            {"emptied and written", "emptied 0003 0012", "emptied 0001 0012"},
                            {"step 0", "done 0002", "done 0000"},
                            {"step twice", "undone 0009", "undone 0013"},
                            {"line twice", "next 0003\r\n", "next 0003\r\nnext 0003\r\n"},
                            {"other line", "next 0003\r\n", "next 0003\r\nother\r\n"},
                            {"other version", "Etat 1", "Etat 2"}});
    }
    void aStateFromElsewhereIsNone()
    {
        QFETCH(QByteArray, was);
        QFETCH(QByteArray, is);
        QByteArray lines = Valid.first(Valid.lastIndexOf("sum "));
        QVERIFY(lines.contains(was));
        if (!was.isEmpty())
            lines.replace(was, is);
        QCOMPARE(sessionStateOf(summed(lines)).has_value(), was.isEmpty());
    }
};

QTEST_MAIN(tst_session)
#include "tst_session.moc"
