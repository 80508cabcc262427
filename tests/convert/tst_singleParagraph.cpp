#include "app/WindowFixture.h"
#include "richtext/HiddenBox.h"
#include "support/TestTable.h"

namespace
{
const QString OpenTitle = "Ouvrir Fichier RTF";
const QString SaveTitle = "Enregistrer Fichier RTF";

AdventureBuilder twoParagraphs()
{
    return AdventureBuilder({"3: Trois.", "5: Cinq."}).current(5);
}
} // namespace

class tst_singleParagraph : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loads_data()
    {
        // The answer is empty where nothing is asked, the name where no file is chosen.
        addTable<int, QString, QString, QString, bool>(
            {"current", "answer", "name", "text", "dirty"},
            {{"into a text", 5, "Yes", "a.rtf", "Neuf au 3", true},
             {"into an empty box", 4, "", "a.rtf", "Neuf au 3", true},
             {"No", 5, "No", "", "Cinq.", false},
             {"cancelled", 5, "Yes", "", "Cinq.", false},
             {"no RTF", 5, "Yes", "b.rtf", "Cinq.", false},
             {"no file", 5, "Yes", "c.rtf", "Cinq.", false}});
    }
    void loads()
    {
        QFETCH(const int, current);
        QFETCH(const QString, answer);
        QFETCH(const QString, name);
        QFETCH(const bool, dirty);
        WindowFixture fixture(twoParagraphs().current(current));
        fixture.adventure.file("a.rtf", rtfOf("Neuf au 3"));
        fixture.adventure.file("b.rtf", "Neuf");
        if (!answer.isEmpty())
            fixture.prompts.expect("Ceci va effacer le texte actuel du paragraphe. Continuer?",
                                   "Attention", Prompts::Buttons::YesNo,
                                   answer == "Yes" ? Prompts::Answer::Yes : Prompts::Answer::No);
        if (answer != "No")
            fixture.prompts.expectFileDialog(OpenTitle,
                                             name.isEmpty() ? "" : fixture.adventure.path(name));
        fixture.field("txtPargNum").setFocus();
        fixture.trigger("menuConvLoad1");
        QTEST(fixture.box().text(), "text");
        QCOMPARE(fixture.variables.ParagraphDirty, dirty);
        QVERIFY(fixture.box().hasFocus());
        if (!dirty)
            return;
        QCOMPARE(fixture.prompts.fileKind(), "Fichiers RTF (*.rtf)|*.rtf;");
        fixture.window->SaveCurParg();
        fixture.window->LoadParg(3);
        QCOMPARE(fixture.entries("incomingList").trimmed(), QString::number(current));
        fixture.window->LoadParg(current);
        QTEST(fixture.box().text(), "text");
    }

    void savesTheParagraphFirst()
    {
        WindowFixture fixture(twoParagraphs());
        fixture.type(" Fin.");
        for (const char *name : {"", "absent/a.rtf", "a.rtf"}) {
            fixture.prompts.expectFileDialog(
                SaveTitle, *name == '\0' ? "" : fixture.adventure.path(name), "LL-0005");
            fixture.trigger("menuConvSave1");
            QVERIFY(!fixture.variables.ParagraphDirty);
            QCOMPARE(fixture.prompts.fileKind(), "Fichiers RTF (*.rtf)|*.rtf;rtf");
        }
        HiddenBox saved;
        for (const char *name : {"a.rtf", "Dossier Usmira/LL-0005.rtf"}) {
            saved.loadFile(fixture.adventure.path(name));
            QCOMPARE(saved.text(), "Cinq. Fin.");
        }
        QCOMPARE(fixture.box().selStart(), 10);
    }

    void refusesNothingToSaveAndTheAdventuresFiles()
    {
        WindowFixture fixture(twoParagraphs());
        fixture.prompts.expectFileDialog(SaveTitle, fixture.adventure.path("Le Loup.usm"),
                                         "LL-0005");
        fixture.prompts.expect("Erreur pendant l'écriture du fichier.", "BUG");
        fixture.trigger("menuConvSave1");
        fixture.box().selectAll();
        QTest::keyClick(&fixture.box(), Qt::Key_Delete);
        fixture.prompts.expect("Rien à enregistrer. Tapez quelque chose d'abord.", "Tséveudire");
        fixture.trigger("menuConvSave1");
        QCOMPARE(fixture.variables.Written.at(5), 0);
    }
};

QTEST_MAIN(tst_singleParagraph)
#include "tst_singleParagraph.moc"
