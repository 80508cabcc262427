#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureFile.h"
#include "store/ParagraphStore.h"
#include "store/ParagraphTransaction.h"
#include "support/AdventureBuilder.h"
#include "support/FaultyCalls.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

using FaultyCalls::Fault;

namespace
{
// An adventure with texts in its file and in working files. Its change moves 2 to 5, 5 to 7, 3 to 2
// and empties 9; 4 gets a new text, 6 and 8 stay.
class Story
{
public:
    Story()
    {
        const QStringList lines{"2: deux", "3!: trois", "4: quatre", "5: cinq",
                                "6: six",  "8!: huit",  "9: neuf"};
        const QString path = m_adventure.file("a.usm", AdventureBuilder(lines).bytes());
        takeOver(variables(), readAdventure(std::make_shared<OpenedFile>(path)));
        variables().FilePrefix = QStringLiteral("a-");
        HiddenBox box;
        for (const int n : {3, 5, 6, 9}) {
            box.setText(QStringLiteral("édité %1").arg(n));
            variables().CurrentParagraph = static_cast<qint16>(n);
            variables().ParagraphDirty = true;
            SaveCurParg(variables(), box);
        }
    }

    Variables &variables() { return m_adventure.variables; }
    QString folder() { return variables().WorkingFolder; }

    void change()
    {
        ParagraphTransaction transaction(variables());
        transaction.change({2, 5, rtfOf("deux, devenu 5"), "0007/", true});
        transaction.change({5, 7, transaction.rtf(5), {}, false});
        transaction.change({3, 2, transaction.rtf(3), "0002/0005/", false});
        transaction.change({4, 4, rtfOf("quatre autrement"), "0008/", false});
        transaction.empty(9, true);
        transaction.commit();
    }

    // All that an author could see or lose.
    QStringList state()
    {
        QStringList lines;
        const Variables &v = variables();
        for (int n = 0; n <= 12; ++n) {
            lines.append(QStringLiteral("%1 %2 %3 %4 %5")
                             .arg(n)
                             .arg(v.Written.at(n))
                             .arg(v.Unmixable.at(n))
                             .arg(v.refIndex.at(n), rtfToPlainText(GetParagraphRtf(v, n))));
        }
        return lines << QString::number(v.LowestWritten) << QString::number(v.HighestWritten);
    }

    // What lies in the working folder and below, names and contents.
    QStringList files()
    {
        QStringList lines;
        const QDir folder(this->folder());
        const auto names = folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
        for (const QString &name : names) {
            QFile file(folder.filePath(name));
            lines.append(name + u' ' +
                         (file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll())
                                                         : QStringLiteral("folder")));
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

private:
    TestAdventure m_adventure;
};

struct Outcome {
    QStringList state;
    QStringList files;
};

Outcome before()
{
    Story story;
    return {story.state(), story.files()};
}

Outcome after()
{
    Story story;
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
        const QStringList expected{"0 0 0  ",
                                   "1 0 0  ",
                                   "2 1 0 0002/0005/ édité 3",
                                   "3 0 0  ",
                                   "4 1 0 0008/ quatre autrement",
                                   "5 1 1 0007/ deux, devenu 5",
                                   "6 1 0  édité 6",
                                   "7 1 0  édité 5",
                                   "8 1 1  huit",
                                   "9 0 1  ",
                                   "10 0 0  ",
                                   "11 0 0  ",
                                   "12 0 0  ",
                                   "2",
                                   "9"};
        QCOMPARE(story.state(), expected);
        QStringList names;
        for (const QString &file : story.files())
            names.append(file.section(u' ', 0, 0));
        QCOMPARE(names.join(u' '), "a-0002.rtf a-0004.rtf a-0005.rtf a-0006.rtf a-0007.rtf");
        QVERIFY(story.variables().AdventureModified);
    }

    void readsItsOwnChangesAndTakesThemBack()
    {
        Story story;
        {
            ParagraphTransaction transaction(story.variables());
            transaction.change({4, 4, rtfOf("un"), {}, false});
            transaction.change({4, 4, rtfOf("autre"), {}, false});
            transaction.empty(6, false);
            QCOMPARE(transaction.rtf(4), rtfOf("autre"));
            QCOMPARE(transaction.rtf(6), QByteArray());
            QCOMPARE(transaction.rtf(8), rtfOf("huit"));
        }
        QCOMPARE(story.state(), before().state);
        QCOMPARE(story.files(), before().files);
    }

    void neverWritesOneTextOverAnother()
    {
        for (const int second : {5, 8}) { // taken by another change, and by a text that stays
            Story story;
            ParagraphTransaction transaction(story.variables());
            transaction.change({2, second, rtfOf("deux"), {}, false});
            transaction.change({3, 5, rtfOf("trois"), {}, false});
            QVERIFY_THROWS_EXCEPTION(UsmiraError, transaction.commit());
            QCOMPARE(story.state(), before().state);
        }
    }

    void aFailedCallLeavesAllOrNothing_data()
    {
        QTest::addColumn<bool>("forGood");
        QTest::newRow("one call fails") << false;
        QTest::newRow("the disk goes") << true;
    }
    void aFailedCallLeavesAllOrNothing()
    {
        if (FaultyCalls::OutOfReach)
            QSKIP("plain calls hide the faults");
        QFETCH(bool, forGood);
        int refused = 0;
        int done = 0;
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
            QCOMPARE(story.state(), threw ? before().state : after().state);
            if (threw || forGood)
                recoverJournal(story.folder()); // what could not even be removed goes at last
            QCOMPARE(story.files(), threw ? before().files : after().files);
        }
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
                ++again;
            const bool nothing = story.files() == before().files;
            ++(nothing ? undone : completed);
            QCOMPARE(story.files(), nothing ? before().files : after().files);
        }
        QVERIFY2(undone > 5 && completed > 5, "the calls were not reached");
    }

    void aDamagedJournalIsSetAside_data()
    {
        QTest::addColumn<QString>("damaged");
        QTest::newRow("journal") << "Session/Journal.xyz";
        QTest::newRow("text") << "0002.xyz";
    }
    void aDamagedJournalIsSetAside()
    {
        QFETCH(QString, damaged);
        int sessions = 0;
        for (int call = 1;; ++call) {
            Story story;
            if (!story.killed(call, [&] { story.change(); }))
                break;
            QFile file(story.folder() + damaged);
            if (!QFile::exists(story.folder() + "Session/Journal.xyz") || !file.exists())
                continue;
            QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(30) && file.putChar('#'));
            file.close();
            const QStringList texts = QDir(story.folder()).entryList({"*.xyz"});
            recoverJournal(story.folder());
            QVERIFY(QDir(story.folder()).entryList({"*.xyz", "Session"}).isEmpty());
            const QDir aside(story.folder() + QDir(story.folder()).entryList({"Réc*"}).value(0));
            QCOMPARE(aside.entryList(QDir::Files), texts + QStringList{"Journal.xyz"});
            ++sessions;
        }
        QVERIFY(sessions > 0);
    }

    void aJournalIsWholeOrNone()
    {
        const Journal journal{QStringLiteral("Éà %-"),
                              {{12, 340, true, textSha256("x"), QStringLiteral("0012/0026/")},
                               {0, 2000, false, textSha256("y"), QString()}},
                              {{3, true}, {9, false}}};
        const QByteArray bytes = journalBytes(journal);
        QVERIFY(journalOf(bytes) == journal);
        for (qsizetype length = 0; length < bytes.size(); ++length)
            QVERIFY(!journalOf(QByteArrayView(bytes).first(length)));
        for (const char *line : {"place 12 2001 1 00 ", "place 12 13 2 00 ", "empty 4", "empty x 0",
                                 "empty 4 0 5", "prefix ../x", "other 1"}) {
            // Right but for the line.
            QByteArray other = "Usmira Journal 1\r\n" + QByteArray(line) + "\r\n";
            other += "sum " + textSha256(other) + "\r\n";
            QVERIFY2(!journalOf(other), line);
        }
    }
};

QTEST_MAIN(tst_paragraphTransaction)
#include "tst_paragraphTransaction.moc"
