#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureFile.h"
#include "store/HistoryNotes.h"
#include "store/ParagraphStore.h"
#include "store/ParagraphTransaction.h"
#include "store/Session.h"
#include "store/WorkingFiles.h"
#include "support/AdventureBuilder.h"
#include "support/FaultyCalls.h"
#include "support/TestTable.h"

#include <QDir>
#include <QFile>
#include <sys/wait.h>
#include <unistd.h>

using FaultyCalls::Fault;

namespace
{
// An adventure with texts in its file and in working files. Its change moves 2 to 5, 5 to 7, 3 to 2
// and empties 9; 4 gets a new text, 6 and 8 stay.
struct Story : TestAdventure {
    Story()
    {
        const AdventureBuilder builder(
            {"2: deux", "3!: trois", "4: quatre", "5: cinq", "6: six", "8!: huit", "9: neuf"});
        takeOver(v, readAdventure(std::make_shared<OpenedFile>(file("a.usm", builder.bytes()))));
        v.FilePrefix = "a-";
        HiddenBox box;
        for (const int n : {3, 5, 6, 9}) {
            box.setText(QString("édité %1").arg(n));
            v.CurrentParagraph = static_cast<qint16>(n);
            v.ParagraphDirty = true;
            SaveCurParg(v, box);
        }
    }

    QString folder() { return v.WorkingFolder; }

    static void change(ParagraphTransaction &transaction)
    {
        transaction.widenRange(0, 12);
        transaction.change({2, 5, rtfOf("deux, devenu 5"), "0007/", true});
        transaction.change({5, 7, transaction.rtf(5), {}, false});
        transaction.change({3, 2, transaction.rtf(3), "0002/0005/", false});
        transaction.change({4, 4, rtfOf("quatre autrement"), "0008/", false});
        transaction.empty(9, true);
        transaction.commit();
    }
    void change()
    {
        ParagraphTransaction transaction(v, {"Commande", {}});
        change(transaction);
    }

    // All that an author could see or lose.
    QStringList state()
    {
        QStringList lines;
        for (int n = 0; n <= 12; ++n)
            lines.append(QString("%1 %2 %3 %4 %5")
                             .arg(n)
                             .arg(v.Written.at(n))
                             .arg(v.Unmixable.at(n))
                             .arg(v.refIndex.at(n), rtfToPlainText(GetParagraphRtf(v, n))));
        return lines << QString::number(v.LowestWritten) << QString::number(v.HighestWritten);
    }

    // A session state, without what differs from one temporary folder to the next.
    static QByteArray whatItSays(const QByteArray &bytes)
    {
        SessionState state = withNext(sessionStateOf(bytes).value_or(SessionState()));
        state.adventurePath.clear();
        state.done.clear(); // the step is looked at by itself
        return sessionStateBytes(state);
    }

    // What lies in the working folder, names and contents.
    QStringList files()
    {
        QStringList lines;
        for (const QString &name : workingFiles()) {
            if (name.contains("Annuler"))
                continue;
            QByteArray bytes = content("Dossier Usmira/" + name);
            if (name.endsWith("Etat.xyz"))
                bytes = whatItSays(bytes);
            lines.append(name + u' ' + (bytes.isEmpty() ? "folder" : QString::fromLatin1(bytes)));
        }
        return lines;
    }

    // Runs action in a process that is killed at its call-th file call. False: it came to its end.
    template <typename Action> bool killed(int call, Action action)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            FaultyCalls::arm(folder(), Fault::Kill, call);
            action();
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) && WEXITSTATUS(status) == FaultyCalls::Killed;
    }

    Variables &v = variables;
};

void spoil(QFile &file, const QString &by, const QString &elsewhere)
{
    const QString name = file.fileName();
    if (by == "byte")
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(30) && file.putChar('#'));
    else if (by == "link")
        QVERIFY(file.rename(elsewhere) && QFile::link(elsewhere, name));
    else
        QVERIFY(file.remove() && QDir().mkpath(name + "/full"));
    file.close();
}

struct Outcome {
    QStringList state;
    QStringList files;
};

Outcome outcome(bool changed)
{
    Story story;
    if (changed)
        story.change();
    return {story.state(), story.files()};
}
} // namespace

class tst_paragraphTransaction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesEverythingItWasGiven()
    {
        Story story;
        story.change();
        QCOMPARE(story.state().join(u'|'),
                 "0 0 0  |1 0 0  |2 1 0 0002/0005/ édité 3|3 0 0  |4 1 0 0008/ quatre autrement|"
                 "5 1 1 0007/ deux, devenu 5|6 1 0  édité 6|7 1 0  édité 5|8 1 1  huit|9 0 1  |"
                 "10 0 0  |11 0 0  |12 0 0  |2|8");
        QCOMPARE(story.workingFiles().join(u' '),
                 "a-0002.rtf a-0004.rtf a-0005.rtf a-0006.rtf a-0007.rtf Session/Annuler-0001.xyz "
                 "Session/Etat.xyz");
        QVERIFY(story.v.AdventureModified);
    }

    void notesWhatItChanged()
    {
        Story story;
        const QStringList old = story.state();
        story.change();
        StepFile file(WorkingFiles(story.v).step(1));
        QString changed;
        for (const auto &[n, paragraph] : file.step().paragraphs) {
            changed += QString::number(n) + u' ';
            if (paragraph.before.written)
                QVERIFY(old.at(n).endsWith(u' ' + rtfToPlainText(file.textBefore(n))));
            if (paragraph.after.written)
                QVERIFY(paragraph.after == storedState(story.v, n));
        }
        QCOMPARE(changed, "2 3 4 5 7 9 ");
        QCOMPARE(file.step().rangeBefore, (WrittenRange{2, 9}));
        QCOMPARE(file.step().rangeAfter, (WrittenRange{2, 8}));
        forgetSession(story.folder()); // as a save does
        DiscardWorkingFiles(story.v);
        QCOMPARE(story.workingFiles().join(u' '), "Session/Annuler-0001.xyz");
        forgetHistory(story.v);
        QVERIFY(story.workingFiles().isEmpty());
    }

    void readsItsOwnChangesAndTakesThemBack()
    {
        Story story;
        {
            ParagraphTransaction transaction(story.v, {"Commande", {}});
            transaction.widenRange(0, 2000);
            transaction.change({4, 4, rtfOf("un"), {}, false});
            transaction.change({4, 4, rtfOf("autre"), {}, false});
            transaction.empty(6, false);
            QCOMPARE(transaction.rtf(4), rtfOf("autre"));
            QCOMPARE(transaction.rtf(6), QByteArray());
            QCOMPARE(transaction.rtf(8), rtfOf("huit"));
        }
        QCOMPARE(story.state(), outcome(false).state);
        QCOMPARE(story.files(), outcome(false).files);
    }

    void neverWritesOneTextOverAnother()
    {
        for (const int second : {5, 8}) { // taken by another change, and by a text that stays
            Story story;
            ParagraphTransaction transaction(story.v, {"Commande", {}});
            transaction.change({2, second, rtfOf("deux"), {}, false});
            transaction.change({3, 5, rtfOf("trois"), {}, false});
            QVERIFY_THROWS_EXCEPTION(UsmiraError, transaction.commit());
            QCOMPARE(story.state(), outcome(false).state);
        }
    }

    void aFailedCallLeavesAllOrNothing_data()
    {
        addTable<bool>({"forGood"}, {{"one call fails", false}, {"the disk goes", true}});
    }
    void aFailedCallLeavesAllOrNothing()
    {
        if (FaultyCalls::OutOfReach)
            QSKIP("plain calls hide the faults");
        QFETCH(bool, forGood);
        int refused = 0;
        int done = 0;
        int stepless = 0;
        for (int call = 1, calls = 1; call <= calls; ++call) {
            Story story;
            FaultyCalls::arm(story.folder(), forGood ? Fault::FailOn : Fault::FailOnce, call);
            bool threw = false;
            try {
                story.change();
            } catch (const FileError &) {
                threw = true;
            }
            calls = std::max(calls, FaultyCalls::disarm());
            ++(threw ? refused : done);
            const QStringList left = story.files();
            QCOMPARE(story.state(), outcome(!threw).state);
            QCOMPARE(story.files(), left); // reading moves nothing
            finishLeftJournal(story.v);
            recoverJournal(story.folder()); // what could not even be removed goes at last
            QCOMPARE(story.files(), outcome(!threw).files);
            // There is a step when the change is done and it could be written.
            const QList<int> kept = story.v.History->keptDone();
            removeOtherSteps(story.folder(), *story.v.History);
            QCOMPARE(story.workingFiles().filter("Annuler").size(), kept.size());
            QVERIFY(!threw || kept.isEmpty());
            if (!kept.isEmpty())
                QCOMPARE(StepFile(WorkingFiles(story.v).step(1)).step().paragraphs.size(), 6U);
            stepless += !threw && kept.isEmpty() ? 1 : 0;
        }
        QVERIFY2(forGood || stepless > 1, "no step was lost");
        QVERIFY2(refused > 5 && done > 5, "the calls were not reached");
    }

    void aKilledProcessLeavesAllOrNothing()
    {
        if (FaultyCalls::OutOfReach)
            QSKIP("plain calls hide the faults");
        int undone = 0;
        int completed = 0;
        for (int call = 1;; ++call) {
            Story story;
            if (!story.killed(call, [&] { story.change(); }))
                break;
            // The next starts are killed as well, until one comes to its end.
            for (int again = 1; story.killed(again, [&] { recoverJournal(story.folder()); });)
                again += FaultyCalls::Stride;
            const bool nothing = story.files() == outcome(false).files;
            ++(nothing ? undone : completed);
            QCOMPARE(story.files(), outcome(!nothing).files);
        }
        QVERIFY2(undone > 5 && completed > 5, "the calls were not reached");
    }

    void aDamagedJournalIsSetAside_data()
    {
        addTable<QString, QString>({"damaged", "by"},
                                   {{"journal", "Session/Journal.xyz", "byte"},
                                    {"text", "0002.xyz", "byte"},
                                    {"text is a link", "0002.xyz", "link"},
                                    {"journal is a link", "Session/Journal.xyz", "link"},
                                    {"journal is a folder", "Session/Journal.xyz", "folder"}});
    }
    void aDamagedJournalIsSetAside()
    {
        if (FaultyCalls::OutOfReach)
            QSKIP("plain calls hide the faults");
        QFETCH(QString, damaged);
        QFETCH(QString, by);
        int sessions = 0;
        for (int call = 1; sessions < 3; ++call) {
            Story story;
            QVERIFY(story.killed(call, [&] { story.change(); }));
            QFile file(story.folder() + damaged);
            if (!QFile::exists(story.folder() + "Session/Journal.xyz") || !file.exists())
                continue;
            spoil(file, by, story.folder() + "../away");
            const QStringList texts = QDir(story.folder()).entryList({"*.xyz"});
            recoverJournal(story.folder());
            QVERIFY(QDir(story.folder()).entryList({"*.xyz"}).isEmpty());
            const QDir aside(story.folder() + QDir(story.folder()).entryList({"Réc*"}).value(0));
            QCOMPARE(aside.entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                     (texts + QStringList{"Journal.xyz", "Suite.xyz"}));
            ++sessions;
        }
    }

    void aJournalIsWholeOrNone()
    {
        const Journal journal{
            "Éà %-",
            {{12, 340, true, textSha256("x"), "0012/é 26/"}, {0, 2000, false, textSha256("y"), {}}},
            {{3, true}, {9, false}}};
        const QByteArray bytes = journalBytes(journal);
        QVERIFY(journalOf(bytes) == journal);
        for (qsizetype length = 0; length < bytes.size(); ++length)
            QVERIFY(!journalOf(QByteArrayView(bytes).first(length)));
    }

    void aJournalFromElsewhereIsNone_data()
    {
        const QByteArray a = "a-\r\n";
        addTable<QByteArray>(
            {"lines"},
            {{"number above 2000", a + "place 0012 2001 1 00 \r\n"},
             {"short number", a + "place 12 0013 1 00 \r\n"},
             {"flag", a + "place 0012 0013 2 00 \r\n"},
             {"word too many", a + "empty 0004 0 5\r\n"},
             {"word too few", a + "empty 0004\r\n"},
             {"other line", a + "other 1\r\n"},
             {"no line end", a + "empty 0004 0"},
             {"half a line end", a + "empty 0004 0\n"},
             {"one paragraph twice", a + "place 0012 0013 1 00 \r\nplace 0012 0014 1 00 \r\n"},
             {"one place twice", a + "place 0012 0013 1 00 \r\nplace 0011 0013 1 00 \r\n"},
             {"emptied twice", a + "empty 0004 0\r\nempty 0004 1\r\n"},
             {"placed and emptied", a + "place 0012 0013 1 00 \r\nempty 0013 0\r\n"},
             {"folder above", "../a-\r\n"},
             {"folder above, disguised", "..%2Fa-\r\n"},
             {"NUL", "a%00-\r\n"},
             {"points", "..\r\n"},
             {"no UTF-8", "%E9-\r\n"},
             {"two prefixes", a + "prefix b-\r\n"}});
    }
    void aJournalFromElsewhereIsNone()
    {
        const auto signedLines = [](const QByteArray &lines) {
            const QByteArray all = lines.isEmpty() ? lines : "Usmira Journal 1\r\nprefix " + lines;
            return all + "sum " + textSha256(all) + "\r\n";
        };
        QFETCH(QByteArray, lines);
        QVERIFY(!journalOf(signedLines(lines)));
        QVERIFY(!journalOf(signedLines({})));
        QVERIFY(journalOf(signedLines("a-\r\nplace 0012 0013 1 00 0026/\r\nempty 0012 0\r\n")));
    }
};

QTEST_MAIN(tst_paragraphTransaction)
#include "tst_paragraphTransaction.moc"
