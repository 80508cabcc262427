#include "app/WindowFixture.h"
#include "editor/search/MatchFinder.h"
#include "outil/HeadlessView.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"
#include "store/ParagraphTexts.h"
#include "store/WorkingFiles.h"
#include "support/TestTable.h"
#include "widgets/PreviewLine.h"

#include <QCheckBox>
#include <QFile>
#include <QListView>
#include <QPushButton>

namespace
{
constexpr auto AskOn = "Dernier paragraphe atteint. Poursuivre au premier ?";
constexpr auto End = "Fin de l'aventure";
constexpr auto Yes = Prompts::Answer::Yes;
constexpr auto YesNo = Prompts::Buttons::YesNo;

QString textOf(const Variables &variables, int n)
{
    return rtfToPlainText(GetParagraphRtf(variables, n));
}

// The search window over paragraphs 2, 5 and 9; 5 is on the screen.
struct Search : WindowFixture {
    Search()
        : WindowFixture(AdventureBuilder({"2: Le loup. Un Loup ?", "5: Va au 9.", "9: loups"})
                            .rawText(5, "{\\rtf1 Va au {\\b lo}up, \\i loup\\i0  ou au 9.}")
                            .current(5)),
          dialog(child<QDialog>(*window, "searchReplace"))
    {
        QTest::keyClick(&box(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
    }

    void fill(const QString &search, const QString &replace = {}) const
    {
        typeOver(child<QLineEdit>(dialog, "txtSearch"), search);
        child<QLineEdit>(dialog, "txtReplace").setText(replace);
    }
    void tick(const char *box) const { child<QCheckBox>(dialog, box).setChecked(true); }
    void press(const char *button) const { ::click(dialog, button); }
    bool canReplace() const { return child<QPushButton>(dialog, "Remplacer").isEnabled(); }
    // "5:6+4": the paragraph on the screen and what is selected in it.
    QString selected() const
    {
        return QString("%1:%2+%3").arg(current()).arg(box().selStart()).arg(box().selLength());
    }

    QDialog &dialog;
};
} // namespace

class tst_searchReplace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replacesEveryMatchOnce_data()
    {
        addTable<QString, QString, QString, bool, bool, QString>(
            {"text", "needle", "by", "word", "matchCase", "result"},
            {{"what comes in is not searched", "aa", "a", "aa", false, false, "aaaa"},
             {"matches do not overlap", "aaa", "aa", "b", false, false, "ba"},
             {"any case", "É é", "é", "e", false, false, "e e"},
             {"this case", "É é", "é", "e", false, true, "É e"},
             {"words", "roi roi_ roi2 (roi)", "roi", "as", true, false, "as roi_ roi2 (as)"},
             {"a word joined by what came in", "--", "-", "x", true, false, "x-"},
             {"a word behind what went", "-b-b", "-b", "", true, false, ""},
             {"over a break", "un\r\ndeux", "\r\n", " ", false, false, "un deux"},
             {"nothing", "abc", "x", "y", false, false, "abc"}});
    }
    void replacesEveryMatchOnce()
    {
        QFETCH(const QString, text);
        QFETCH(const bool, word);
        QFETCH(const QString, needle);
        QFETCH(const QString, by);
        QFETCH(const bool, matchCase);
        HiddenBox box;
        box.setText(text);
        replaceInBox(box, replacementsOfAll(box.text(), needle, by, {word, matchCase}));
        QTEST(box.text(), "result");
    }

    void findsWhatTheListLooksFor_data()
    {
        addTable<QString, QString, QString, bool, bool, QString>(
            {"text", "needle", "by", "expression", "accents", "result"},
            {{"accents", "La forêt, la FORET", "foret", "mer", false, true, "La mer, la mer"},
             {"an accent behind its letter", "e\u0301a", "É", "x", false, true, "xa"},
             {"no expression", "a.c abc", "a.c", "$0", false, false, "$0 abc"},
             {"groups", "roi loup", "(\\w+) (\\w+)", "$2 $1$3$$", true, false, "loup roi$"},
             {"groups with accents", "forêt", "(FOR)(et)", "$2$1", true, true, "êtfor"},
             {"lines", "a\r\naa", "^a", "b", true, false, "b\r\nba"},
             {"breaks", "a\r\n\r\nb", "\\s+", " ", true, false, "a b"},
             {"no empty match", "axa", "x*", "y", true, false, "aya"},
             {"words of any letters", "à été", "\\b\\w{3}\\b", "x", true, false, "à x"}});
    }
    void findsWhatTheListLooksFor()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, needle);
        QFETCH(const QString, by);
        QFETCH(const bool, expression);
        QFETCH(const bool, accents);
        HiddenBox box;
        box.setText(text);
        const MatchFinder finder({needle, {}, expression, accents});
        replaceInBox(box, finder.replacements(box.text(), by));
        QTEST(box.text(), "result");
    }

    void anExpressionThatTakesForEverIsStopped()
    {
        const MatchFinder finder({"(a+)+$", {}, true, false});
        QVERIFY_THROWS_EXCEPTION(PatternTooCostly,
                                 finder.replacements(QString(50000, 'a') + '!', {}));
        Search search;
        child<QCheckBox>(search.dialog, "regularExpression").setChecked(true);
        search.fill("a(");
        search.prompts.expect(
            "Cette expression régulière n'est pas valable, à partir du caractère 3.", "Zut");
        search.press("listAll");
        search.box().setText(QString(300, 'a') + '!');
        search.variables.ParagraphDirty = true;
        search.fill("(a+)+$");
        search.prompts.expect("Cette expression régulière demande trop de travail au paragraphe 5. "
                              "Simplifiez-la.",
                              "Zut");
        search.press("listAll");
        auto &count = child<QLabel>(*search.window, "count");
        QTRY_COMPARE(count.text(), "Occurrences jusqu'au paragraphe 5 : 0 (liste arrêtée là)");
    }

    void listsAllMatchesAndReplacesTheChosen()
    {
        Search search;
        search.fill("loup", "chat");
        search.press("listAll");
        auto &window = child<QDialog>(*search.window, "MatchWindow");
        auto &list = child<QListView>(window, "matches");
        auto &count = child<QLabel>(window, "count");
        QTRY_COMPARE(count.text(), "Occurrences : 5");
        QCOMPARE(list.model()->index(1, 0).data().toString(),
                 "2, caractère 12 : Le loup. Un Loup ?");
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(search.selected(), "2:3+4");
        search.type("Loup.");
        list.setCurrentIndex(list.model()->index(3, 0));
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(search.selected(), "5:12+4");
        QCOMPARE(count.text(), "Occurrences : 6");
        for (const int row : {0, 5})
            list.selectionModel()->select(list.model()->index(row, 0), QItemSelectionModel::Select);
        search.prompts.expect("Remplacements effectués : 3.", "Remplacer la sélection");
        ::click(window, "replaceChosen");
        QCOMPARE(textOf(search.variables, 2), "Le chat. Un Loup ?Loup.");
        QCOMPARE(search.box().text(), "Va au loup, chat ou au 9.");
        QCOMPARE(textOf(search.variables, 9), "chats");
        QCOMPARE(count.text(), "Occurrences : 3");
        search.window->LoadParg(40); // behind the last one so far
        search.type("loup");
        search.window->SaveCurParg();
        QCOMPARE(count.text(), "Occurrences : 4");
        search.tick("ch1P");
        search.press("listAll");
        QTRY_COMPARE(count.text(), "Occurrences : 1");
        search.adventure.file("Dossier Usmira/LL-0040.rtf", "no RTF");
        search.press("listAll");
        QTRY_COMPARE(count.text(), "Occurrences : 0. Paragraphes illisibles : 40.");
    }

    void replacesNoListedMatchThatHasGone()
    {
        Search search;
        HeadlessView view(search.variables);
        SearchCommands commands(search.variables, search.prompts, view, view);
        view.LoadParg(2);
        search.prompts.expect("Remplacements effectués : 1. Occurrences que le texte n'a plus : 3.",
                              "Remplacer la sélection");
        commands.replaceListed(MatchFinder({"loup", {}, false, false}), "chat",
                               {{2, 3, "loup"}, {2, 12, "loup"}, {5, 7, "loup"}, {8, 0, "loup"}});
        QCOMPARE(textOf(search.variables, 2), "Le chat. Un Loup ?");
        QCOMPARE(search.variables.Extracted.at(5), 0);
    }

    void searchesOnThroughTheAdventure()
    {
        Search search;
        QVERIFY(!search.canReplace());
        search.fill("loup");
        const auto next = [&] {
            QTest::keyClick(&search.dialog, Qt::Key_Return);
            return search.selected();
        };
        QCOMPARE(next(), "5:6+4");
        QCOMPARE(next(), "5:12+4");
        QVERIFY(search.canReplace());
        QCOMPARE(next(), "9:0+4");
        search.prompts.expect(AskOn, End, YesNo, Yes);
        QCOMPARE(next(), "2:3+4");
        QTest::keyClick(&search.dialog, Qt::Key_Escape);
        QVERIFY(!search.dialog.isVisible());
        search.window->activateWindow();
        QTest::keyClick(&search.box(), Qt::Key_F3);
        QCOMPARE(search.selected(), "2:12+4");
        // Again from where it stands, until the author has selected something else.
        search.trigger("menuEditSearch");
        QVERIFY(!search.canReplace());
        QCOMPARE(next(), "5:6+4");
        search.box().select(10, 0);
        search.trigger("menuEditSearch");
        QCOMPARE(next(), "5:6+4");
        search.tick("chMM");
        search.tick("chWW");
        search.prompts.expect(AskOn, End, YesNo, Prompts::Answer::No);
        next();
        QCOMPARE(next(), "5:0+0");
        QVERIFY(!search.canReplace());
        search.tick("ch1P");
        search.fill("absent");
        search.prompts.expect("Fin du paragraphe atteinte.", "Rien");
        next();
        search.fill("");
        search.prompts.expect("Vous devez chercher pour quelque chose.", "Tsé");
        search.press("Suivant");
    }

    // Also what was typed is found on the way round, and saved when the author leaves.
    void replacesTheMatchThatIsSelected()
    {
        Search search;
        search.fill("loup", "chat");
        search.press("Suivant");
        search.box().select(0, 2);
        search.press("Remplacer");
        QCOMPARE(search.box().text(), "Va au loup, loup ou au 9.");
        QCOMPARE(search.selected(), "5:12+4");
        search.press("Remplacer");
        QCOMPARE(search.selected(), "9:0+4");
        QCOMPARE(textOf(search.variables, 5), "Va au loup, chat ou au 9.");
        QVERIFY(search.variables.AdventureModified);
        search.prompts.expect(AskOn, End, YesNo, Prompts::Answer::No);
        search.press("Remplacer");
        QCOMPARE(search.box().text(), "chats");
    }

    void replacesEverywhereAndLeavesTheRestAsItIs()
    {
        Search search;
        const QByteArray ninth = GetParagraphRtf(search.variables, 9);
        search.fill("loup", "au 2");
        search.tick("chWW");
        const auto &line = child<PreviewLine>(search.dialog, "preview");
        search.window->LoadParg(9);
        search.type(" Loup ");
        search.press("count");
        QCOMPARE(line.accessibleName(), "5 occurrences dans 3 paragraphes.");
        search.trigger("menuEditUndo"); // in the box of another paragraph than at first
        QVERIFY(line.accessibleName().isEmpty());
        search.window->LoadParg(5);
        search.press("count");
        QCOMPARE(line.accessibleName(), "4 occurrences dans 2 paragraphes.");
        search.prompts.expect("Remplacements effectués : 4.", "Remplacer Tous");
        search.press("RemplacerTous");
        QVERIFY(line.accessibleName().isEmpty()); // what was counted is so no more
        QCOMPARE(textOf(search.variables, 2), "Le au 2. Un au 2 ?");
        QCOMPARE(search.box().text(), "Va au au 2, au 2 ou au 9.");
        QCOMPARE(GetParagraphRtf(search.variables, 5), search.box().rtf());
        QVERIFY(search.box().find("au 2,", 0, {}) == 6 && !search.box().selBold());
        QCOMPARE(search.variables.refIndex.at(2), "0002/0002/");
        QCOMPARE(search.variables.refIndex.at(5), "0002/0009/");
        QCOMPARE(GetParagraphRtf(search.variables, 9), ninth);
        QCOMPARE(search.variables.Extracted.at(9), 0);
        QVERIFY(search.variables.Extracted.at(2) == 1 && !search.variables.ParagraphDirty);
        search.trigger("menuEditUndo");
        QCOMPARE(search.box().text(), "Va au loup, loup ou au 9.");
    }

    void replacesNothingOrAllOfIt()
    {
        Search search;
        search.fill("loup");
        const QString attention = "La case Remplacer est vide. Cette opération effacera le texte "
                                  "cherché partout où il se trouve. Continuer ?";
        constexpr auto OkCancel = Prompts::Buttons::OkCancel;
        search.prompts.expect(attention, "Attention", OkCancel, Prompts::Answer::Cancel);
        search.press("RemplacerTous");
        QFile::remove(WorkingFiles(search.variables).text(9));
        search.variables.Extracted.at(9) = 1;
        search.prompts.expect(attention, "Attention", OkCancel);
        const QString failure = "Erreur de lecture de fichier. Paragraphes illisibles : 9.";
        search.press("count");
        QCOMPARE(child<PreviewLine>(search.dialog, "preview").accessibleName(), failure);
        search.prompts.expect(failure, "BUG");
        search.press("RemplacerTous");
        QVERIFY(search.box().text().contains("loup") && !search.variables.AdventureModified);
        search.variables.Extracted.at(9) = 0;
        search.fill("loups");
        search.prompts.expect(attention, "Attention", OkCancel);
        search.prompts.expect("Remplacements effectués : 1.", "Remplacer Tous");
        search.press("RemplacerTous");
        QVERIFY(textOf(search.variables, 9).isEmpty() && search.variables.Written.at(9) == 1);
    }
};

QTEST_MAIN(tst_searchReplace)
#include "tst_searchReplace.moc"
