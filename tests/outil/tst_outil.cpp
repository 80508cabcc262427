#include "outil/Commands.h"
#include "outil/Script.h"
#include "platform/SafeFile.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureFile.h"
#include "store/ParagraphTexts.h"
#include "store/Session.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"
#include "views/graph/GraphFile.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

namespace
{
struct Outcome {
    int status;
    QByteArray output;
    QString errors;
};

Outcome run(const TestAdventure &adventure, const QStringList &arguments,
            const QByteArray &input = {})
{
    QProcess process;
    process.start(QStringLiteral(USMIRA_OUTIL),
                  QStringList{QStringLiteral("--dossier"), adventure.variables.WorkingFolder} +
                      arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished())
        QTest::qFail("usmira-outil did not end", __FILE__, __LINE__);
    return {process.exitCode(), process.readAllStandardOutput(),
            QString::fromUtf8(process.readAllStandardError())};
}
} // namespace

class tst_outil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splitsWordsAsAShellDoes_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("words");
        const auto row = [](const char *name, const QString &line, const QStringList &words) {
            QTest::newRow(name) << line << words;
        };
        row("blanks", QStringLiteral("  rtf \t 12 "),
            {QStringLiteral("rtf"), QStringLiteral("12")});
        row("double quotes", QStringLiteral("a \"b \\\"c\\\\\" d"),
            {QStringLiteral("a"), QStringLiteral("b \"c\\"), QStringLiteral("d")});
        row("single quotes", QStringLiteral("'a \\b'c"), {QStringLiteral("a \\bc")});
        row("empty word", QStringLiteral("a ''"), {QStringLiteral("a"), QString()});
        row("backslash", QStringLiteral("Le\\ Loup"), {QStringLiteral("Le Loup")});
        row("comment", QStringLiteral("a b#c # d"), {QStringLiteral("a"), QStringLiteral("b#c")});
    }
    void splitsWordsAsAShellDoes()
    {
        QFETCH(QString, line);
        QTEST(splitCommand(line), "words");
    }

    void typesWithTheAidsThatAreNamed()
    {
        const TestAdventure adventure;
        const QByteArray script = "taper 'x--- \"oe' optNDash optFrenchQuotes\ntaper 'x--'\n";
        const Outcome outcome = run(adventure, {}, script);
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(QString::fromUtf8(outcome.output), QStringLiteral("x–- «oe\nx--\n"));
        QCOMPARE(run(adventure, {}, "taper x optNDash optRien\n").status, 2);
    }

    void aScriptMakesAndReadsAnAdventure()
    {
        TestAdventure adventure;
        adventure.file(QStringLiteral("t.rtf"), rtfOf(QStringLiteral("Va au 2 ou au 9")));
        const QByteArray script =
            "nouvelle '" + adventure.path(QStringLiteral("Le Loup.usm")).toUtf8() + "'\ntexte 5 '" +
            adventure.path(QStringLiteral("t.rtf")).toUtf8() + "'\ntexte 7 '" +
            adventure.path(QStringLiteral("t.rtf")).toUtf8() +
            "'\neffacer 7\nfixe 5 1\nenregistrer\nmene 9\nlibre 8\n"
            "texte-brut 5\netat\n";
        const Outcome outcome = run(adventure, {}, script);
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.status, 0);
        const QList<QByteArray> lines = outcome.output.split('\n');
        QCOMPARE(lines.at(0), QByteArray("5"));
        QCOMPARE(lines.at(1), QByteArray("10"));
        QCOMPARE(lines.at(2), QByteArray("Va au 2 ou au 9\r"));
        const QJsonObject state = QJsonDocument::fromJson(lines.at(3)).object();
        QCOMPARE(state[QStringLiteral("version")].toInt(), 35);
        QCOMPARE(state[QStringLiteral("modified")].toBool(true), false);
        QCOMPARE(state[QStringLiteral("paragraphs")].toArray().size(), 7);
        const QJsonObject five = state[QStringLiteral("paragraphs")].toArray().at(4).toObject();
        QCOMPARE(five[QStringLiteral("refs")].toString(), QStringLiteral("0002/0009/"));
        QVERIFY(five[QStringLiteral("fixed")].toBool() && five[QStringLiteral("written")].toBool());
        const QStringList left = adventure.workingFiles();
        QVERIFY2(left.isEmpty(), qPrintable(left.join(u' ')));
    }

    void paragraphsGetOtherNumbers()
    {
        TestAdventure adventure;
        const QString path =
            adventure.file(QStringLiteral("a.usm"), AdventureBuilder({QStringLiteral("1: Va au 4"),
                                                                      QStringLiteral("4: Va au 9"),
                                                                      QStringLiteral("9: Va au 1")})
                                                        .bytes());
        const Outcome outcome = run(adventure, {}, "ouvrir '" + path.toUtf8() + R"('
echanger 1 4
texte-brut 1
combler 1 9
texte-brut 3
deplacer 3 3 2 bas
texte-brut 1
deplacer 1 3 5 haut
mene 8
melanger 9 4 7
melanger 4 9
)");
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.output.split('\r').join(), "Va au 9\nVa au 2\nVa au 2\n7\n");
    }

    void adventuresAreSplitAndMerged()
    {
        TestAdventure adventure;
        adventure.file("a.usm", AdventureBuilder({"1: Va au 4", "4!: Va au 9", "9: Fin"}).bytes());
        const QByteArray script = "ouvrir '@a.usm'\ndeparts 4 1 4\n"
                                  "scinder 5 2 '@b.usm' effacer\ncompter\n"
                                  "fusionner '@b.usm'\nmene 9\ndeparts\n"
                                  "scinder 1 1 '@b.usm'\n";
        const QByteArray folder = adventure.path("./").toUtf8();
        const Outcome outcome = run(adventure, {}, QByteArray(script).replace('@', folder));
        QCOMPARE(outcome.output, "2\n4\n4\n1\n");
        QCOMPARE(readAdventure(adventure.path("b.usm")).extras.starts, QList<int>{4});
        QVERIFY2(outcome.errors.contains("b.usm existe déjà"), qPrintable(outcome.errors));
        QCOMPARE(outcome.status, 1);
    }

    void doubtfulWordsAreWritten()
    {
        TestAdventure adventure;
        adventure.file("a.usm", AdventureBuilder({"2: Elric apelle.", "4: D'Elric."}).bytes());
        adventure.file("c.usm", AdventureBuilder({"9: Fin."}).bytes());
        const QByteArray open = "ouvrir '" + adventure.path("a.usm").toUtf8() + "'\n";
        const Outcome outcome = run(adventure, {}, open + "orthographe");
        QVERIFY2(outcome.output.startsWith("apelle\t1\t2\tappelle, "), outcome.output);
        QVERIFY2(outcome.output.contains("\nElric\t2\t2, 4\t"), outcome.output);
        QCOMPARE(outcome.status, 1);
        const QByteArray script = open + "ajouter-mot Elric\nscinder 1 9 '@b.usm'\n" +
                                  "ouvrir '@c.usm'\nfusionner '@b.usm'\nmots\n"
                                  "orthographe rapide\n";
        const QByteArray folder = adventure.path("./").toUtf8();
        const Outcome merged = run(adventure, {"--non"}, QByteArray(script).replace('@', folder));
        QCOMPARE(merged.output, "Elric\napelle\t1\t2\t\n");
        QCOMPARE(run(adventure, {}, open + "ajouter-mot 'a b'").status, 2);
    }

    void commandsAreTakenBackAndListed()
    {
        TestAdventure adventure;
        adventure.file("a.usm", AdventureBuilder({"1: Va au 4", "4!: Va au 9", "9: Fin"}).bytes());
        const QByteArray script = "ouvrir '@a.usm'\nechanger 1 2\nechanger 4 9\nenregistrer\n"
                                  "annuler\nretablir\nannuler 1\nmene 4\nhistorique\nretablir\n"
                                  "table '@t.csv'\ntable '@back.csv' 7 0\nannuler 9\n";
        const QByteArray folder = adventure.path("./").toUtf8();
        const Outcome outcome = run(adventure, {"--oui"}, QByteArray(script).replace('@', folder));
        QString lines = QString::fromUtf8(outcome.output);
        lines.replace(QRegularExpression("\\d{4}-\\S+ [\\d:]+"), "T");
        QCOMPARE(lines, "1\n5\tT\tÉchange 4 et 9\t3\t2\tannulée\n"
                        "6\tT\tÉchange 1 et 2\t2\t1\tannulée\n");
        QCOMPARE(outcome.errors, "Zut : Rien n'a été annulé ni rétabli.\n");
        const QString table = QString::fromUtf8(adventure.content("t.csv"));
        QVERIFY2(table.endsWith("\r\n1;2;\"Va au 4\"\r\n4;4;\"Va au 9\"\r\n9;9;\"Fin\"\r\n"),
                 qPrintable(table));
        QVERIFY(adventure.content("back.csv").contains("\n2;1;\"Va au 4\"\r\n"));
        QVERIFY(adventure.workingFiles().isEmpty());
    }

    // Only in texts that are rewritten: nothing of 5 is.
    void garbledReferencesAreMendedWhenTheScriptSaysSo()
    {
        const QString question = "Attention : 2 renvois seraient mal réécrits. Les corriger "
                                 "d'abord ?\n";
        for (const auto &[name, options, first, text, errors] :
             Table<QStringList, QByteArray, QByteArray, QString>{
                 {"unasked", {}, "4 5", "Va au 3, au 026 ou au  30", {}},
                 {"no answer", {}, "3 7", "Va au 3, au 026 ou au  30", question},
                 {"mended", {"--oui"}, "3 7", "Va au 7, au 26 ou au 30", {}},
                 {"as they stand", {"--non"}, "3 7", "Va au 7, au 266 ou au 300", {}}}) {
            TestAdventure adventure;
            adventure.file("a.usm", AdventureBuilder({"1: Va au 3, au 026 ou au  30", "3: Fin",
                                                      "5: Va au 026", "7: Fin"})
                                        .bytes());
            const QByteArray script = "ouvrir '" + adventure.path("a.usm").toUtf8() +
                                      "'\nechanger " + first + "\ntexte-brut 1\n";
            const Outcome outcome = run(adventure, options, script);
            QCOMPARE(outcome.errors, errors);
            QCOMPARE(outcome.status, errors.isEmpty() ? 0 : 1);
            QCOMPARE(outcome.output.trimmed(), errors.isEmpty() ? text : QByteArray());
        }
    }

    void doubtfulReferencesAreListed()
    {
        TestAdventure adventure;
        const QString path =
            adventure.file(QStringLiteral("a.usm"),
                           AdventureBuilder({QStringLiteral("1: Va au 4"), QStringLiteral("2: Zut"),
                                             QStringLiteral("4: Va au 09")})
                               .rawText(2, "zut")
                               .bytes());
        const Outcome outcome = run(adventure, {}, "ouvrir '" + path.toUtf8() + "'\ndouteux\n");
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(QStringLiteral("illisibles : 2.")),
                 qPrintable(outcome.errors));
        const QByteArray expected = "4\t3\tau 09\tIl y a un zéro";
        QCOMPARE(outcome.output.left(expected.size()), expected);
        QCOMPARE(outcome.output.count('\n'), 1);
    }

    void theBookIsChecked()
    {
        TestAdventure adventure;
        const auto check = [&](const QStringList &lines, const QByteArray &command) {
            const QString path =
                adventure.file(QStringLiteral("a.usm"), AdventureBuilder(lines).bytes());
            return run(adventure, {}, "ouvrir '" + path.toUtf8() + "'\n" + command + '\n');
        };
        const QStringList trap{QStringLiteral("1: Il fait nuit. Va au 2 ou au 4."),
                               QStringLiteral("2: Il fait froid ici. Va au 3."),
                               QStringLiteral("3: Il fait chaud ici. Va au 2."),
                               QStringLiteral("4: Il fait beau ici maintenant (2).")};
        const Outcome faulty = check(trap, "controler json");
        QCOMPARE(faulty.status, 1);
        QVERIFY(faulty.errors.contains(QStringLiteral("1 faute, 2 remarques")));
        QCOMPARE(
            QString::fromUtf8(faulty.output),
            QStringLiteral(
                "{\"findings\":["
                "{\"kind\":\"piege\",\"members\":[2,3],\"number\":2,\"severity\":\"faute\","
                "\"target\":0,\"text\":\"\"},"
                "{\"kind\":\"fin\",\"members\":[],\"number\":4,\"severity\":\"remarque\","
                "\"target\":0,\"text\":\"Il fait beau ici maintenant (2).\"},"
                "{\"kind\":\"non-suivi\",\"members\":[],\"number\":4,\"severity\":\"remarque\","
                "\"target\":0,\"text\":\"(2)\"}]}\n"));
        const Outcome sound = check({QStringLiteral("1: Il fait nuit.")},
                                    "accepter fin 1\ncontroler\naccepter fin 1");
        QCOMPARE(sound.status, 1); // of what is accepted there is no more
        QCOMPARE(QString::fromUtf8(sound.output),
                 QStringLiteral("court\t1\tLe paragraphe a moins de cinq mots.\n"));
    }

    void typographyIsCountedAndDone()
    {
        TestAdventure adventure;
        const QString path = adventure.file(
            QStringLiteral("a.usm"),
            AdventureBuilder({QStringLiteral("0: Oui !"), QStringLiteral("2: Oui ! Va  au  12..."),
                              QStringLiteral("3: Va au 2.")})
                .bytes());
        const auto tool = [&](const QByteArray &commands) {
            return run(adventure, {}, "ouvrir '" + path.toUtf8() + "'\n" + commands + '\n').output;
        };
        QCOMPARE(tool("typographie 0 insecables renvois"), "insecables\t2\nrenvois\t1\n");
        QCOMPARE(QString::fromUtf8(tool("typographie appliquer fines insecables espaces\n"
                                        "texte-brut 2\ntypographie espaces\nannuler\n"
                                        "texte-brut 2\ntypographie zut")),
                 QStringLiteral("insecables\t1\nespaces\t1\nOui\u202f! Va au  12...\r\nespaces\t0\n"
                                "Oui ! Va  au  12...\r\n"));
    }

    void theBookIsCountedAndRead()
    {
        TestAdventure adventure;
        const QString path = adventure.file(
            QStringLiteral("a.usm"),
            AdventureBuilder({QStringLiteral("1: L'épée. Va au 2."), QStringLiteral("2: Va au 3"),
                              QStringLiteral("3: Fin."), QStringLiteral("4: Va au 5")})
                .list(1, "0002/")
                .list(2, "0003/")
                .list(4, "0005/")
                .bytes());
        const auto tool = [&](const QByteArray &command) {
            return run(adventure, {}, "ouvrir '" + path.toUtf8() + "'\n" + command + '\n');
        };
        QCOMPARE(QString::fromUtf8(tool("statistiques json").output),
                 QStringLiteral(
                     "{\"choices\":3,\"endings\":[{\"number\":3,\"passages\":[1,2],"
                     "\"readings\":1000,\"way\":[1,2,3]}],\"lengths\":[{\"length\":3,"
                     "\"readings\":1000}],\"longest\":1,\"loops\":[],\"never\":[4],"
                     "\"paragraphs\":[{\"choices\":1,\"met\":1000,\"number\":1,\"signs\":16,"
                     "\"words\":5},{\"choices\":1,\"met\":1000,\"number\":2,\"signs\":7,"
                     "\"words\":3},{\"choices\":0,\"met\":1000,\"number\":3,\"signs\":4,"
                     "\"words\":1},{\"choices\":1,\"met\":0,\"number\":4,\"signs\":7,"
                     "\"words\":3}],\"reached\":3,\"readings\":1000,\"seed\":1,\"share\":0.75,"
                     "\"shortest\":3,\"signs\":34,\"starts\":[1],\"words\":12}\n"));
        QVERIFY(QString::fromUtf8(tool("statistiques").output)
                    .contains(QStringLiteral("\n3\t100,0 %\t3\t1, 2, 3\t1, 2\tFin.\n")));
        const Table<QByteArray, QByteArray, int> readings{
            {"from 1", "1", "1\n2\n3\n", 0}, {"empty number at its end", "4 12", "4\n5\n", 0},
            {"empty number", "5", "", 1},    {"no number", "x", "", 2},
            {"no seed", "1 -1", "", 2},
        };
        for (const auto &[name, arguments, output, status] : readings) {
            const Outcome outcome = tool("lire " + arguments);
            QCOMPARE(outcome.output, output);
            QCOMPARE(outcome.status, status);
        }
    }

    void theWholeIsListed()
    {
        TestAdventure adventure;
        const QString path = adventure.file(
            QStringLiteral("a.usm"),
            AdventureBuilder({QStringLiteral("2!: Va au 4"), QStringLiteral("3: Va au 2 ou au 3")})
                .list(2, "0004/")
                .list(3, "0002/0003/")
                .bytes());
        const Outcome outcome =
            run(adventure, {}, "ouvrir '" + path.toUtf8() + "'\ngrille\nproximite 1.5\n");
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(QString::fromUtf8(outcome.output),
                 QStringLiteral("1\t0\tVide\n2\t1\tTapé\tFixe\n3\t1\tTapé\n4\t3\tRéservé\n"
                                "3 mène au 2\n3 mène au 3\n3 mène au 3 et au 2\n"));
        const Outcome refused = run(adventure, {}, "ouvrir '" + path.toUtf8() + "'\nproximite x\n");
        QCOMPARE(refused.status, 1);
        QVERIFY(refused.errors.contains(QStringLiteral("ne fait aucun sens.")));
    }

    void treesAreListedAndDrawn()
    {
        TestAdventure adventure;
        const QByteArray open = "ouvrir '" +
                                adventure
                                    .file(QStringLiteral("a.usm"),
                                          AdventureBuilder({QStringLiteral("1: Va au 2 ou au 9"),
                                                            QStringLiteral("2: Va au 1")})
                                              .list(1, "0002/0009/")
                                              .list(2, "0001/")
                                              .bytes())
                                    .toUtf8() +
                                "'\n";
        const QString drawing =
            adventure.path(DrawsSvg ? QStringLiteral("a.svg") : QStringLiteral("a.png"));
        const Outcome outcome = run(adventure, {},
                                    open + "arbre 1 avant 3\narbre 9 arriere 1\n" +
                                        "arbre 1 avant 3 " + drawing.toUtf8());
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(QString::fromUtf8(outcome.output),
                 QStringLiteral("0\t1\tTapé\n1\t2\tTapé\n2\t1\tTapé\tdéjà montré ailleurs\n"
                                "1\t9\tRéservé\n0\t9\tRéservé\n"
                                "1\t1\tTapé\tsuite non montrée\n"));
        QVERIFY(
            adventure.content(QFileInfo(drawing).fileName()).contains(DrawsSvg ? "<svg" : "PNG"));
        for (const char *wrong : {"x avant 3", "1 avent 3", "1 avant 0", "1 avant 26"})
            QCOMPARE(run(adventure, {}, open + "arbre " + wrong).status, 2);
        QCOMPARE(
            run(adventure, {}, open + "arbre 1 avant 3 " + adventure.path("a.usm").toUtf8()).status,
            DrawsSvg ? 1 : 2);
    }

    void textsAreSearchedReplacedAndFormatted()
    {
        TestAdventure adventure;
        const QString path = adventure.file(
            QStringLiteral("a.usm"),
            AdventureBuilder({QStringLiteral("1: Roi, roi"), QStringLiteral("4: Rois au 9")})
                .bytes());
        const Outcome outcome = run(adventure, {}, "ouvrir '" + path.toUtf8() + R"('
chercher roi
chercher roi casse mot
remplacer roi "au 4" mot
mene 4
uniformiser Georgia 1638
rtf 4
uniformiser - 1639
)");
        QCOMPARE(outcome.status, 2);
        QVERIFY2(outcome.errors.contains(QStringLiteral("1639")), qPrintable(outcome.errors));
        QVERIFY2(outcome.output.startsWith(
                     "1 0\n1 5\n4 0\n1 5\nRemplacements effectués : 2.\n1\n{\\rtf1"),
                 outcome.output);
        QVERIFY2(outcome.output.contains("Georgia;") && outcome.output.contains("\\fs3276 Rois"),
                 outcome.output);
    }

    void paragraphsArePublished()
    {
        TestAdventure adventure;
        const QByteArray folder = adventure.path(QStringLiteral("./")).toUtf8();
        adventure.file(
            QStringLiteral("a.usm"),
            AdventureBuilder({QStringLiteral("1: Va au 9"), QStringLiteral("9: Fin")}).bytes());
        const QByteArray script = "ouvrir '@a.usm'\ncompiler-rtf 2000 2 '@livre.rtf'\n"
                                  "html 1 9 '@livre.htm'\npages 5 2000 '@' L-\npages 1 1 '@'\n"
                                  "lecture 1 9 '@livre.html'\n";
        const Outcome outcome = run(adventure, {}, QByteArray(script).replace('@', folder));
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.status, 0);
        QVERIFY(
            adventure.content(QStringLiteral("livre.htm")).contains("<A HREF=\"#P0009\">9</A>"));
        const QByteArray page = adventure.content(QStringLiteral("livre.html"));
        QVERIFY(page.contains("<a href=\"#p9\">9</a>") && !page.contains("id=\"die\""));
        QVERIFY(adventure.content(QStringLiteral("L-0009.htm")).contains("Fin"));
        QVERIFY(adventure.content(QStringLiteral("L-0001.htm")).isEmpty());
        QVERIFY(adventure.content(QStringLiteral("a-0001.htm")).contains("a-0009.htm"));
        QVERIFY(adventure.content(QStringLiteral("livre.rtf"))
                    .endsWith("\\deflang1036\\pard\\qc \\f0\\plain\\f0\\fs24\\b 9\r\n"
                              "\\par \\pard \\f0\\plain\\f0\\fs24 Fin\r\n"
                              "\\par \r\n\\par \r\n\\par }"));
    }

    void booksTellOfReferencesToEmptyParagraphs()
    {
        TestAdventure adventure;
        const QByteArray path =
            adventure.file("a.usm", AdventureBuilder({"1: Va au 5"}).bytes()).toUtf8();
        for (const QByteArray kind : {"pdf", "epub", "lecture", "compiler-rtf"}) {
            const QByteArray script = "ouvrir '" + path + "'\n" + kind + " 1 9 '" + path + ".x'" +
                                      (kind == "compiler-rtf" ? " liens" : "");
            const QString errors = run(adventure, {}, script).errors;
            QVERIFY2(errors.contains("paragraphe vide") && errors.contains('5'), kind);
        }
    }

    void aBookOfADateIsAlwaysTheSame()
    {
        TestAdventure adventure;
        const QString path = adventure.file(QStringLiteral("a.usm"),
                                            AdventureBuilder({QStringLiteral("1: Un")}).bytes());
        const auto book = [&](const QString &change) {
            const QStringList commands{
                QStringLiteral("ouvrir '%1'").arg(path), change,
                QStringLiteral("epub 1 9 '%1.epub' date=2026-11-22").arg(path)};
            const Outcome outcome = run(adventure, {}, commands.join(u'\n').toUtf8());
            return outcome.errors.toUtf8() + adventure.content(QStringLiteral("a.usm.epub"));
        };
        const QByteArray bytes = book({});
        QVERIFY(bytes.startsWith("PK") && bytes.contains("OEBPS/p0001.xhtml"));
        QCOMPARE(book(QStringLiteral("fixe 1 1")), bytes);
    }

    // So does the bundled help, which the pages are made of.
    void theManualPagesNameEveryCommand_data()
    {
        QTest::addColumn<QString>("page");
        QTest::newRow("English") << USMIRA_RESOURCES "/man/man1/usmira-outil.1";
        QTest::newRow("French") << USMIRA_RESOURCES "/man/fr/man1/usmira-outil.1";
    }
    void theManualPagesNameEveryCommand()
    {
        QFETCH(QString, page);
        QStringList named;
        QString text = QString::fromUtf8(readWholeFile(page, 1 << 20));
        static const QRegularExpression command("\n\\.TP\n\\\\fB(\\w.*)\\\\fR\n");
        for (auto match = command.globalMatch(text.replace("\\-", "-")); match.hasNext();)
            named << "  " + match.next().captured(1).leftJustified(36) + ' ';
        const QStringList lines = Commands::help().split('\n', Qt::SkipEmptyParts);
        for (const QString &line : lines)
            QVERIFY2(std::any_of(named.begin(), named.end(),
                                 [&](const QString &form) { return line.startsWith(form); }),
                     qPrintable(line));
        QCOMPARE(named.size(), lines.size());
    }

    void failuresAndBadUsageHaveTheirStatus_data()
    {
        QTest::addColumn<QStringList>("commands");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *name, const QStringList &commands, int status,
                            const QString &message) {
            QTest::newRow(name) << commands << status << message;
        };
        row("no adventure", {QStringLiteral("etat")}, 1, QStringLiteral("Aucun Fichier Ouvert"));
        row("no such file", {QStringLiteral("ouvrir /nowhere.usm")}, 1,
            QStringLiteral("Erreur de lecture de fichier."));
        row("unknown", {QStringLiteral("danser")}, 2, QStringLiteral("commande inconnue"));
        row("missing argument", {QStringLiteral("ouvrir")}, 2, QStringLiteral("FICHIER"));
        row("no paragraph, after a change",
            {QStringLiteral("ouvrir @"), QStringLiteral("texte 1 @.rtf"),
             QStringLiteral("rtf 2001")},
            2, QStringLiteral("de 0 à 2000"));
        row("unanswered question",
            {QStringLiteral("ouvrir @"), QStringLiteral("effacer 1"), QStringLiteral("ouvrir @")},
            1, QStringLiteral("Rappel amical"));
        row("nonsense numbers", {QStringLiteral("ouvrir @"), QStringLiteral("echanger 0 x")}, 1,
            QStringLiteral("C'est la loi"));
        row("nowhere to move", {QStringLiteral("ouvrir @"), QStringLiteral("deplacer 2 3 1 ici")},
            2, QStringLiteral("bas ou haut"));
        row("seed", {QStringLiteral("ouvrir @"), QStringLiteral("melanger 1 9 x")}, 2,
            QStringLiteral("graine"));
        row("own file", {QStringLiteral("ouvrir @"), QStringLiteral("compiler-rtf 1 9 @")}, 1,
            QStringLiteral("Erreur pendant l'écriture du fichier."));
        row("a file that cannot be opened, said nowhere",
            {QStringLiteral("ouvrir @"), QStringLiteral("html 1 9 /nowhere/a.htm")}, 1, QString());
        row("no file", {QStringLiteral("ouvrir @"), QStringLiteral("epub 1 9 ''")}, 1,
            QStringLiteral("Le nom du fichier est vide."));
        row("no folder", {QStringLiteral("ouvrir @"), QStringLiteral("pages 1 9 ''")}, 2,
            QStringLiteral("dossier attendu"));
        row("word of a book", {QStringLiteral("ouvrir @"), QStringLiteral("epub 1 9 @.e titel=")},
            2, QStringLiteral("titre=..., auteur=... ou date=... attendu : titel="));
        row("date", {QStringLiteral("ouvrir @"), QStringLiteral("epub 1 9 @.e date=hier")}, 2,
            QStringLiteral("date=AAAA-MM-JJ attendu : hier"));
        row("word of a compilation",
            {QStringLiteral("ouvrir @"), QStringLiteral("compiler-rtf 1 9 @.e lien")}, 2,
            QStringLiteral("liens attendu : lien"));
        row("words of pages", {QStringLiteral("ouvrir @"), QStringLiteral("pdf 1 9 @.p encre=1")},
            2, QStringLiteral("mise en pages inconnue : encre=1"));
        row("pages without room",
            {QStringLiteral("ouvrir @"), QStringLiteral("pdf 1 9 @.p interieur=120")}, 1,
            QStringLiteral("Zut : Les marges intérieure et extérieure ne laissent pas 25 mm"));
        row("word of a page", {QStringLiteral("ouvrir @"), QStringLiteral("lecture 1 9 @.e de")}, 2,
            QStringLiteral("fiche attendu : de"));
        row("nothing in the range", {QStringLiteral("ouvrir @"), QStringLiteral("lecture 5 9 @.e")},
            1, QStringLiteral("Aucun paragraphe n'est écrit de 5 à 9."));
        row("existing file", {QStringLiteral("nouvelle @")}, 1, QStringLiteral("existe déjà"));
    }
    void failuresAndBadUsageHaveTheirStatus()
    {
        TestAdventure adventure;
        const QByteArray bytes = AdventureBuilder({QStringLiteral("1: Fin")}).bytes();
        const QString path = adventure.file(QStringLiteral("a.usm"), bytes);
        adventure.file(QStringLiteral("a.usm.rtf"), rtfOf(QStringLiteral("autre")));
        QFETCH(QStringList, commands);
        QStringList arguments;
        for (QString command : commands)
            arguments << QStringLiteral("-e") << command.replace(u'@', path);
        const Outcome outcome = run(adventure, arguments);
        QTEST(outcome.status, "status");
        QFETCH(QString, message);
        QVERIFY2(outcome.errors.contains(message), qPrintable(outcome.errors));
        QCOMPARE(adventure.content(QStringLiteral("a.usm")), bytes);
        QVERIFY(adventure.workingFiles().isEmpty());
    }

    void damagedTextsAreToldAndStopNothing()
    {
        TestAdventure adventure;
        const AdventureBuilder builder({QStringLiteral("1: Va"), QStringLiteral("2: Fin")});
        const QString path = adventure.file(QStringLiteral("a.usm"),
                                            AdventureBuilder(builder).rawText(1, "zut").bytes());
        const Outcome outcome = run(adventure, {}, "ouvrir '" + path.toUtf8() + R"('
etat
effacer 2
enregistrer
)");
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.errors,
                 QStringLiteral("BUG : Paragraphes illisibles : 1.\n"
                                "BUG : Paragraphes illisibles, non enregistrés : 1. Leurs octets "
                                "sont gardés à côté de l'aventure.\n"));
        const QJsonArray state = QJsonDocument::fromJson(outcome.output)
                                     .object()[QStringLiteral("paragraphs")]
                                     .toArray();
        const QJsonObject one = state.at(0).toObject();
        QVERIFY(one[QStringLiteral("damaged")].toBool() &&
                one[QStringLiteral("text")] == QString());
        QVERIFY(!state.at(1).toObject()[QStringLiteral("damaged")].toBool(true));
        QCOMPARE(adventure.content(QStringLiteral("a (illisible 0001).bin")), QByteArray("zut"));
    }

    void theBoxOfAKilledProgramOutlivesEveryCommand()
    {
        TestAdventure killed;
        Variables &v = killed.variables;
        const QString path = killed.file(QStringLiteral("a.usm"),
                                         AdventureBuilder({QStringLiteral("1: Fin")}).bytes());
        takeOver(v, readAdventure(path));
        setNames(v, path);
        HiddenBox box;
        box.setText(QStringLiteral("pas encore en lieu sûr"));
        v.CurrentParagraph = 7;
        v.ParagraphDirty = true;
        keepBox(v, box);
        v.AdventureFile.reset(); // the system closes the files of a program that is killed
        const Outcome outcome = run(killed, {QStringLiteral("--recuperer"), QStringLiteral("-e"),
                                             QStringLiteral("effacer 1"), QStringLiteral("-e"),
                                             QStringLiteral("texte-brut 7"), QStringLiteral("-e"),
                                             QStringLiteral("enregistrer")});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output.trimmed(), QByteArray("pas encore en lieu sûr"));
        takeOver(v, readAdventure(path));
        QCOMPARE(rtfToPlainText(GetParagraphRtf(v, 7)), QStringLiteral("pas encore en lieu sûr"));
    }

    void answersDecideWhatBecomesOfTheChanges_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("saved");
        QTest::newRow("--oui") << QStringLiteral("--oui") << true;
        QTest::newRow("--non") << QStringLiteral("--non") << false;
    }
    void answersDecideWhatBecomesOfTheChanges()
    {
        QFETCH(QString, answer);
        QFETCH(bool, saved);
        TestAdventure adventure;
        const QByteArray bytes = AdventureBuilder({QStringLiteral("1: Fin")}).bytes();
        const QString path = adventure.file(QStringLiteral("a.usm"), bytes);
        const QString open = QStringLiteral("ouvrir ") + path;
        const Outcome outcome =
            run(adventure, {answer, QStringLiteral("-e"), open, QStringLiteral("-e"),
                            QStringLiteral("effacer 1"), QStringLiteral("-e"), open});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(adventure.content(QStringLiteral("a.usm")) != bytes, saved);
    }
};

QTEST_MAIN(tst_outil)
#include "tst_outil.moc"
