#include "outil/HeadlessView.h"
#include "renumber/AdventureSplit.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureEvents.h"
#include "store/AdventureMerge.h"
#include "store/ParagraphTexts.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using Answer = Prompts::Answer;

namespace
{
const QString Invalid = "Fichier invalide. Opération annulée.";
const QString ReadFailure = "Erreur de lecture de fichier.";
const QString NoParagraph = "Cette aventure ne contient aucun paragraphe.";
const QString WriteFailure = "Erreur pendant l'écriture du fichier.";
const QString Untouched = "2-5 2 Va au 3 (0003/), 3! Fin (), 5 Zut au 9 (0009/)";

AdventureBuilder wolf()
{
    return AdventureBuilder({"2: Va au 3", "3!: Fin", "5: Zut au 9"});
}

// An adventure open beside others, without a window.
struct Editor : TestAdventure {
    explicit Editor(const AdventureBuilder &builder = wolf())
    {
        QTEST_ASSERT(commands.OpenAdventure(file("Le Loup.usm", builder.bytes())));
    }
    void expectQuestion(int count, Answer answer)
    {
        const QString text = "ATTENTION : %1 paragraphes du fichier à importer ont les mêmes "
                             "numéros que ceux du fichier actuel. Voulez-vous REMPLACER les "
                             "paragraphes de l'aventure actuelle par ceux de l'aventure importée ?";
        prompts.expect(text.arg(count), "Attention !", Prompts::Buttons::YesNoCancel, answer);
    }
    void merge(const QByteArray &bytes) { merging.ImportFrom(file("autre.usm", bytes)); }
    bool split(double low, double high, bool murder = false, const QString &name = "part.usm")
    {
        return splitting.Export({low, high, murder}, [&] { return path(name); });
    }
    // As Untouched; an adventure that is unsaved has a star behind its range.
    QString state() const
    {
        QStringList texts;
        for (int n = 0; n <= Variables::LastParagraph; ++n) {
            const QString mark = v.Unmixable.at(n) == 1 ? "!" : "";
            if (v.Written.at(n) == 1 || !mark.isEmpty())
                texts += QString::number(n) + mark + ' ' + rtfToPlainText(GetParagraphRtf(v, n)) +
                         " (" + v.refIndex.at(n) + ')';
        }
        return QString::number(v.LowestWritten) + '-' + QString::number(v.HighestWritten) +
               (v.AdventureModified ? "* " : " ") + texts.join(", ");
    }

    Variables &v = variables;
    PromptRecorder prompts;
    HeadlessView view{v};
    AdventureCommands commands{v, prompts, view, view};
    AdventureMerge merging{v, prompts, view};
    AdventureSplit splitting{v, prompts, view};
};
} // namespace

class tst_splitAndMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Of the other adventure, 2 and 11 have empty texts, and 9 was written by another program.
    void paragraphsComeUnderTheirNumbers()
    {
        const QString kept = "2 Va au 3 (0003/), 3! Fin (), 5 Zut au 9 (0009/)";
        const QString replaced = QString(kept).replace("3! Fin ()", "3 Vers 5 au 7 (0007/)");
        AdventureBuilder other({"2!: x", "3: Vers 5 au 7", "9!: x", "11!: x"});
        other.phrase("vers ").rawText(2, "{\\rtf1\\b\\par }").rawText(9, "{\\rtf1 Neuf}");
        other.rawText(11, {});
        for (const auto &[name, answer, bytes, state] : Table<Answer, QByteArray, QString>{
                 {"replaced", Answer::Yes, other.bytes(), "2-9* " + replaced + ", 9! Neuf ()"},
                 {"kept", Answer::No, other.bytes(), "2-9* " + kept + ", 9! Neuf ()"},
                 {"version 25", Answer::Yes, other.oldBytes(25),
                  "2-9* " + replaced + ", 9! Neuf ()"},
                 {"no marks", Answer::No, other.oldBytes(24), "2-9* " + kept + ", 9 Neuf ()"},
                 {"cancelled", Answer::Cancel, other.bytes(), "2-5 " + kept}}) {
            Editor e;
            QList<int> changed;
            connect(e.v.Events.get(), &AdventureEvents::textsChanged, this,
                    [&](const QList<int> &numbers) { changed = numbers; });
            e.expectQuestion(2, answer);
            e.merge(bytes);
            QCOMPARE(e.prompts.note(),
                     "Oui : 1 paragraphe remplacé et 1 nouveau. Non : 1 nouveau.");
            QCOMPARE(e.state(), state);
            QCOMPARE(changed.contains(9), answer != Answer::Cancel);
            QCOMPARE(changed.contains(3), answer == Answer::Yes);
            QCOMPARE(GetParagraphRtf(e.v, 9), changed.isEmpty() ? QByteArray() : rtfOf("Neuf"));
            QCOMPARE(e.v.CurrentParagraph, qint16{2});
        }
    }

    void badFilesChangeNothing_data()
    {
        QRandomGenerator random(7);
        QByteArray noise;
        for (int i = 0; i < 6000; ++i)
            noise += static_cast<char>(random.bounded(256));
        const QByteArray old = wolf().oldBytes(25);
        const QByteArray good = wolf().bytes();
        addTable<QByteArray, QString>(
            {"bytes", "message"},
            {{"empty", "", Invalid},
             {"one byte", good.left(1), Invalid},
             {"version above 32767", '\x80' + noise, Invalid},
             {"random", '\x12' + noise, ReadFailure},
             {"placeholder", "Nothing yet", ReadFailure},
             {"old and cut in the offsets", old.left(5000), ReadFailure},
             {"old and cut in the last text", old.chopped(1), ReadFailure},
             {"no paragraph", AdventureBuilder().bytes(), NoParagraph},
             {"unknown tags", good.chopped(4) + QByteArray(100 << 20, 'x'), ReadFailure},
             {".", {}, Invalid},
             {"fifo", {}, Invalid},
             {"missing", {}, Invalid}});
        for (int length = 2; length < good.size(); ++length)
            QTest::addRow("cut at %d", length) << good.left(length) << ReadFailure;
    }
    void badFilesChangeNothing()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, message);
        Editor e;
#ifdef Q_OS_UNIX
        QCOMPARE(::mkfifo(qPrintable(e.path("fifo")), 0600), 0);
#endif
        e.prompts.expect(message, message == NoParagraph ? "Niouf" : "BUG");
        if (bytes.isNull())
            e.merging.ImportFrom(e.path(QTest::currentDataTag()));
        else
            e.merge(bytes);
        QCOMPARE(e.state(), Untouched);
        QCOMPARE(e.content("Le Loup.usm"), wolf().bytes());
        QVERIFY(e.workingFiles().isEmpty());
    }

    // What stands before it comes in, and what can no longer be read is kept. Whatever the answer,
    // the note below the question has said what comes.
    void aTextThatCannotBeReadEndsTheImport()
    {
        Editor e;
        e.v.Extracted.at(3) = 1;
        e.file("Dossier Usmira/LL-0003.rtf", "zut");
        e.expectQuestion(1, Answer::Yes);
        e.prompts.expect("Paragraphes illisibles, remplacés : 3. Leurs octets sont gardés à côté "
                         "de l'aventure.",
                         "BUG");
        e.prompts.expect("Erreur lors de l'importation des paragraphes.", "BUG");
        e.merge(AdventureBuilder({"3: Six au 1", "7: x", "8: x"}).rawText(7, "zut").bytes());
        QCOMPARE(
            e.state(),
            QString(Untouched).replace("2-5", "2-5*").replace("3! Fin ()", "3 Six au 1 (0001/)"));
        QCOMPARE(e.content("Le Loup (illisible 0003).bin"), "zut");
        QCOMPARE(e.prompts.note(),
                 "Oui : 1 paragraphe remplacé et aucun nouveau. Non : aucun nouveau.");
        Editor kept;
        kept.expectQuestion(2, Answer::No);
        kept.merge(AdventureBuilder({"1: x", "2: x", "3: x", "7: x"}).rawText(2, "zut").bytes());
        QCOMPARE(kept.prompts.note(),
                 "Oui : aucun paragraphe remplacé et 1 nouveau. Non : 2 nouveaux.");
        QVERIFY(kept.v.Written.at(1) == 1 && kept.v.Written.at(7) == 1);
    }

    void aRangeBecomesAnAdventure()
    {
        const QByteArray all = wolf().bytes();
        const QByteArray two = AdventureBuilder({"2: Va au 3", "3!: Fin"}).bytes();
        for (const auto &[name, low, high, bytes] :
             Table<double, double, QByteArray>{{"whole", 2, 5, all},
                                               {"empty ends", 0, 4, two},
                                               {"exchanged", 4.5, 1.5, two}, // 4 and 2
                                               {"huge", 1, 1e300, all},
                                               {"empty", 4, 4, {}},
                                               {"above all", 2001, 3000, {}}}) {
            Editor e;
            if (bytes.isEmpty())
                e.prompts.expect("Tous les paragraphes dans cet intervalle sont vides.", "Zut");
            QCOMPARE(e.split(low, high), !bytes.isEmpty());
            QCOMPARE(e.content("part.usm"), bytes);
            QCOMPARE(e.state(), Untouched);
            QVERIFY(e.workingFiles().isEmpty());
        }
    }

    void paragraphsGoOnceTheFileIsWhole()
    {
        Editor e;
        QVERIFY(e.split(1, 4, true));
        QCOMPARE(e.state(), "5-5* 3!  (), 5 Zut au 9 (0009/)");
        QVERIFY(e.split(1, 2000, true) && e.commands.Save());
        QCOMPARE(e.state(), "1-1 3!  ()");
    }

    void aRefusedSplitDeletesNothing()
    {
        const QString unreadable = ReadFailure + " Paragraphes illisibles : 5.";
        for (const auto &[name, target, message] :
             Table<QString, QString>{{"the adventure", "Le Loup.usm", WriteFailure},
                                     {"a working file", "Dossier Usmira/LL-0002.rtf", WriteFailure},
                                     {"nowhere", "a/b.usm", WriteFailure},
                                     {"unreadable", "part.usm", unreadable},
                                     {"written, and no deletion", "part.usm", WriteFailure}}) {
            Editor e;
            const bool written = target == "part.usm" && message == WriteFailure;
            if (written)
                QVERIFY(QDir().mkpath(e.path("Dossier Usmira/Session/Suite.xyz/full")));
            if (message == unreadable)
                e.v.SectionOffset.at(5) -= 1;
            e.prompts.expect(message, "BUG");
            QVERIFY(!e.split(2, 5, true, target));
            QVERIFY(e.v.Written.at(2) == 1 && e.v.Written.at(5) == 1 && !e.v.AdventureModified);
            QCOMPARE(e.content("Le Loup.usm"), wolf().bytes());
            QCOMPARE(QFile::exists(e.path("part.usm")), written);
        }
    }

    void splitInThreeAndMergedAgainItIsTheSame()
    {
        Editor e(AdventureBuilder({"0: Notes", "1!: Va au 9 ou au 12", "9: Va au 1", "12!: Va au 9",
                                   "1999: Va au 12", "2000!: Fin"}));
        const QByteArray bytes = e.content("Le Loup.usm");
        QVERIFY(e.split(0, 8, false, "1.usm") && e.split(9, 1000, false, "2.usm") &&
                e.split(1001, 2000, false, "3.usm"));
        QVERIFY(e.commands.NewAdventure(e.path("Neuve.usm")));
        for (const QString name : {"3.usm", "1.usm", "2.usm"})
            e.merging.ImportFrom(e.path(name));
        e.v.CurrentParagraph = 0;
        QVERIFY(e.commands.Save());
        QCOMPARE(e.content("Neuve.usm"), bytes);
    }
};

QTEST_MAIN(tst_splitAndMerge)
#include "tst_splitAndMerge.moc"
