#include "outil/HeadlessView.h"
#include "renumber/AdventureSplit.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureEvents.h"
#include "store/AdventureMerge.h"
#include "store/ParagraphStore.h"
#include "support/AdventureBuilder.h"
#include "support/FaultyCalls.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <sys/stat.h>

using Answer = Prompts::Answer;

namespace
{
const QString Invalid = "Fichier invalide. Opération annulée.";
const QString ReadFailure = "Erreur de lecture de fichier.";
const QString ImportFailure = "Erreur lors de l'importation des paragraphes.";
const QString WriteFailure = "Erreur pendant l'écriture du fichier.";
const QString AllEmpty = "Tous les paragraphes dans cet intervalle sont vides.";

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
    void expect(const QString &text, const QString &title = "BUG") { prompts.expect(text, title); }
    void expectQuestion(int count, Answer answer)
    {
        prompts.expect(QString("ATTENTION : %1 paragraphes du fichier à importer ont les mêmes "
                               "numéros que ceux du fichier actuel. Voulez-vous REMPLACER les "
                               "paragraphes de l'aventure actuelle par ceux de l'aventure "
                               "importée ?")
                           .arg(count),
                       "Attention !", Prompts::Buttons::YesNoCancel, answer);
    }
    void merge(const QByteArray &bytes) { merging.ImportFrom(file("autre.usm", bytes)); }
    bool split(double low, double high, bool murder = false, const QString &name = "part.usm")
    {
        return splitting.Export({low, high, murder}, [&] { return path(name); });
    }
    // "2-5 2 Va au 3 (0003/), 3! Fin (), 5 Zut (0009/)", with a star when it is unsaved.
    QString state() const
    {
        QStringList texts;
        for (int n = 0; n <= Variables::LastParagraph; ++n) {
            if (v.Written.at(n) == 1 || v.Unmixable.at(n) == 1)
                texts += QString("%1%2 %3 (%4)")
                             .arg(n)
                             .arg(v.Unmixable.at(n) == 1 ? "!" : "")
                             .arg(rtfToPlainText(GetParagraphRtf(v, n)), v.refIndex.at(n));
        }
        return QString("%1-%2%3 ")
                   .arg(v.LowestWritten)
                   .arg(v.HighestWritten)
                   .arg(v.AdventureModified ? "*" : "") +
               texts.join(", ");
    }

    Variables &v = variables;
    PromptRecorder prompts;
    HeadlessView view{v};
    AdventureCommands commands{v, prompts, view, view};
    AdventureMerge merging{v, prompts, view};
    AdventureSplit splitting{v, prompts, view};
};
const QString Untouched = "2-5 2 Va au 3 (0003/), 3! Fin (), 5 Zut au 9 (0009/)";

// Says yes to all.
struct Yes : PromptRecorder {
    Answer message(const QString &text, const QString & /*title*/, Buttons buttons) override
    {
        if (buttons == Buttons::Ok)
            told = text.section('\n', 0, 0);
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Yes;
    }
    QString told;
};
} // namespace

class tst_splitAndMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Paragraph 2 of the other adventure has an empty text, 3 is not fixed there, 9 is.
    void paragraphsComeUnderTheirNumbers_data()
    {
        addTable<Answer, QString>(
            {"answer", "state"},
            {{"replaced", Answer::Yes,
              "2-9* 2 Va au 3 (0003/), 3 Vers 5 au 7 (0007/), 5 Zut au 9 (0009/), 9! Neuf ()"},
             {"kept", Answer::No,
              "2-9* 2 Va au 3 (0003/), 3! Fin (), 5 Zut au 9 (0009/), 9! Neuf ()"},
             {"cancelled", Answer::Cancel, Untouched}});
    }
    void paragraphsComeUnderTheirNumbers()
    {
        QFETCH(Answer, answer);
        const AdventureBuilder other =
            AdventureBuilder({"2!: x", "3: Vers 5 au 7", "9!: Neuf", "11!: x"})
                .phrase("vers ")
                .rawText(2, "{\\rtf1\\b\\par }")
                .rawText(11, {});
        for (const QByteArray &bytes : {other.bytes(), other.oldBytes(25)}) {
            Editor e;
            QList<int> changed;
            connect(e.v.Events.get(), &AdventureEvents::textsChanged, this,
                    [&](const QList<int> &numbers) { changed = numbers; });
            e.expectQuestion(2, answer);
            e.merge(bytes);
            QTEST(e.state(), "state");
            QCOMPARE(changed.contains(9), answer != Answer::Cancel);
            QCOMPARE(changed.contains(3), answer == Answer::Yes);
        }
        Editor e; // versions below have no marks
        e.expectQuestion(2, answer);
        e.merge(other.oldBytes(24));
        QCOMPARE(e.v.Unmixable.at(9), quint8{0});
    }

    // Through the box: what another program wrote is written in our layout, in our font.
    void aTextComesAsIfItWereTyped()
    {
        const QByteArray foreign = "{\\rtf1\\ansi\\fs40 Va\\b  au 3\\line Fin}";
        Editor merged;
        merged.v.defaultFontName = "Georgia";
        Editor typed;
        typed.v.defaultFontName = "Georgia";
        typed.view.editingBox().setBaseFont("Georgia", 12);
        typed.view.LoadParg(7);
        typed.view.editingBox().setRtf(foreign);
        typed.v.ParagraphDirty = true;
        SaveCurParg(typed.v, typed.view.editingBox());
        merged.merge(AdventureBuilder({"7: x"}).rawText(7, foreign).bytes());
        QCOMPARE(GetParagraphRtf(merged.v, 7), GetParagraphRtf(typed.v, 7));
        QCOMPARE(merged.state(), typed.state());
        QCOMPARE(merged.v.CurrentParagraph, qint16{2});
    }

    void itselfAndAnEmptyAdventureChangeNothing()
    {
        Editor e;
        e.expectQuestion(3, Answer::No);
        e.merging.ImportFrom(e.v.AdventurePath);
        e.expect("Cette aventure ne contient aucun paragraphe.", "Niouf");
        e.merge(AdventureBuilder().bytes());
        QCOMPARE(e.state(), Untouched);
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
             {"unknown tags", good.chopped(4) + QByteArray(100 << 20, 'x'), ReadFailure},
             {".", {}, Invalid},
             {"fifo", {}, Invalid},
             {"missing", {}, Invalid}});
        for (qsizetype length = 2; length < good.size(); ++length)
            QTest::addRow("cut at %d", static_cast<int>(length))
                << good.left(length) << ReadFailure;
    }
    void badFilesChangeNothing()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, message);
        Editor e;
        const QString name = e.path(QTest::currentDataTag());
        QCOMPARE(::mkfifo(qPrintable(e.path("fifo")), 0600), 0);
        e.expect(message);
        if (bytes.isNull())
            e.merging.ImportFrom(name);
        else
            e.merge(bytes);
        QCOMPARE(e.state(), Untouched);
        QCOMPARE(e.content("Le Loup.usm"), wolf().bytes());
        QVERIFY(e.workingFiles().isEmpty());
    }

    void whatWasReadBeforeAnErrorStays()
    {
        Editor e;
        e.expect(ImportFailure);
        AdventureBuilder other({"6: Six au 1", "7: Sept", "8: Huit"});
        e.merge(other.rawText(7, "zut").bytes());
        QCOMPARE(e.state(), QString(Untouched).replace("2-5", "2-6*") + ", 6 Six au 1 (0001/)");
    }

    void anUnreadableTextIsKeptBeforeItIsReplaced()
    {
        Editor e;
        e.v.Extracted.at(3) = 1; // a working file that nobody has seen
        e.file("Dossier Usmira/LL-0003.rtf", "zut");
        e.expectQuestion(1, Answer::Yes);
        e.expect("Paragraphes illisibles, remplacés : 3. Leurs octets sont gardés à côté de "
                 "l'aventure.");
        e.merge(AdventureBuilder({"3: Trois"}).bytes());
        QCOMPARE(e.content("Le Loup (illisible 0003).bin"), "zut");
        QCOMPARE(GetParagraphRtf(e.v, 3), rtfOf("Trois"));
    }

    void allComeInOrNoneWhenAFileCallFails()
    {
        if (FaultyCalls::OutOfReach)
            QSKIP("the calls are out of reach");
        int failed = 0;
        for (int call = 1; call < 100; ++call) {
            Editor e;
            Yes yes;
            AdventureMerge merging(e.v, yes, e.view);
            const QString other = e.file("autre.usm", AdventureBuilder({"3: x", "7: y"}).bytes());
            FaultyCalls::arm(e.v.WorkingFolder, FaultyCalls::Fault::FailOnce, call);
            merging.ImportFrom(other);
            if (FaultyCalls::disarm() < call)
                break; // the import came to its end before
            failed += yes.told.isEmpty() ? 0 : 1;
            QCOMPARE(yes.told, yes.told.isEmpty() ? QString() : WriteFailure);
            QCOMPARE(e.state(), yes.told.isEmpty() ? "2-7* 2 Va au 3 (0003/), 3 x (), 5 Zut au 9 "
                                                     "(0009/), 7 y ()"
                                                   : Untouched);
        }
        QVERIFY(failed > 3);
    }

    // The written ones are 2, 3 and 5.
    void aRangeBecomesAnAdventure_data()
    {
        const QByteArray all = wolf().bytes();
        const QByteArray two = AdventureBuilder({"2: Va au 3", "3!: Fin"}).bytes();
        addTable<double, double, QByteArray>({"low", "high", "bytes"},
                                             {{"whole", 2, 5, all},
                                              {"empty ends", 0, 4, two},
                                              {"exchanged", 4.5, 1.5, two}, // 4 and 2
                                              {"huge", 1, 1e300, all},
                                              {"empty", 4, 4, {}},
                                              {"above all", 2001, 3000, {}}});
    }
    void aRangeBecomesAnAdventure()
    {
        QFETCH(const double, low);
        QFETCH(const double, high);
        QFETCH(const QByteArray, bytes);
        Editor e;
        if (bytes.isEmpty())
            e.expect(AllEmpty, "Zut");
        QCOMPARE(e.split(low, high), !bytes.isEmpty());
        QCOMPARE(e.content("part.usm"), bytes);
        QCOMPARE(e.state(), Untouched);
        QVERIFY(e.workingFiles().isEmpty());
    }

    void paragraphsGoOnceTheFileIsWhole()
    {
        Editor e;
        QVERIFY(e.split(1, 4, true));
        QCOMPARE(e.state(), "5-5* 3!  (), 5 Zut au 9 (0009/)");
        QVERIFY(e.split(1, 2000, true));
        QCOMPARE(e.state(), "1-1* 3!  ()");
        QVERIFY(e.commands.Save());
        QCOMPARE(e.content("Le Loup.usm").count("SECT"), 0);
    }

    void aRefusedSplitDeletesNothing_data()
    {
        addTable<QString, QString>({"target", "message"},
                                   {{"the adventure", "Le Loup.usm", WriteFailure},
                                    {"a working file", "Dossier Usmira/LL-0002.rtf", WriteFailure},
                                    {"a folder", "Dossier Usmira", WriteFailure},
                                    {"nowhere", "a/b.usm", WriteFailure},
                                    {"an unreadable text", "part.usm",
                                     "Erreur de lecture de fichier. Paragraphes illisibles : 5."},
                                    {"no deletion", "part.usm", WriteFailure}});
    }
    void aRefusedSplitDeletesNothing()
    {
        QFETCH(const QString, target);
        QFETCH(const QString, message);
        const bool damaged = message != WriteFailure;
        const bool written = QTest::currentDataTag() == QByteArray("no deletion");
        Editor e;
        if (damaged)
            e.v.SectionOffset.at(5) -= 1;
        if (written)
            e.file("Dossier Usmira/Session", "no folder");
        const QByteArray before = e.content("Le Loup.usm");
        e.expect(message);
        QVERIFY(!e.split(2, 5, true, target));
        QVERIFY(e.v.Written.at(2) == 1 && e.v.Written.at(5) == 1 && !e.v.AdventureModified);
        QCOMPARE(e.content("Le Loup.usm"), before);
        QCOMPARE(QFile::exists(e.path("part.usm")), written);
    }

    void splitInThreeAndMergedAgainItIsTheSame()
    {
        Editor e(AdventureBuilder({"0: Notes", "1!: Va au 9 ou au 12", "9: Va au 1", "12!: Va au 9",
                                   "1999: Va au 12", "2000!: Fin"}));
        const QString before = e.state();
        const QByteArray bytes = e.content("Le Loup.usm");
        QVERIFY(e.split(0, 8, false, "1.usm") && e.split(9, 1000, false, "2.usm") &&
                e.split(1001, 2000, false, "3.usm"));
        QVERIFY(e.commands.NewAdventure(e.path("Neuve.usm")));
        for (const QString name : {"3.usm", "1.usm", "2.usm"})
            e.merging.ImportFrom(e.path(name));
        QCOMPARE(e.state(), QString(before).replace("0-2000", "0-2000*"));
        e.v.CurrentParagraph = 0;
        QVERIFY(e.commands.Save());
        QCOMPARE(e.content("Neuve.usm"), bytes);
    }
};

QTEST_MAIN(tst_splitAndMerge)
#include "tst_splitAndMerge.moc"
