#include "WindowFixture.h"

#include "store/CommandHistory.h"
#include "store/WorkingFiles.h"

#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QStatusBar>
#include <QTreeWidget>

namespace
{
void swap(const WindowFixture &fixture, const QString &one, const QString &two)
{
    fixture.inDialog([&] { fixture.trigger("menuComSwap"); },
                     [&](QDialog &dialog) {
                         typeOver(child<QLineEdit>(dialog, "txtOne"), one);
                         typeOver(child<QLineEdit>(dialog, "txtTwo"), two);
                         click(dialog, "OKButton");
                     });
}

// Columns of a list, with strokes between the rows.
QString rows(const QTreeView &list, const QList<int> &columns)
{
    QStringList all;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
        QStringList texts;
        for (const int column : columns)
            texts.append(list.model()->index(row, column).data().toString());
        all.append(texts.join(u' '));
    }
    return all.join(u'|');
}
} // namespace

class tst_historyMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandsAreTakenBackFromTheMenu()
    {
        const WindowFixture fixture(AdventureBuilder({"1: Va au 12.", "12: Ici.", "40: Là."}));
        const auto &takeBack = fixture.control<QAction>("menuEditTakeBack");
        const auto &redo = fixture.control<QAction>("menuEditRedoCommand");
        const auto told = [&] { return fixture.control<QStatusBar>("statusBar").currentMessage(); };
        QVERIFY(!takeBack.isEnabled() && !redo.isEnabled());
        QCOMPARE(takeBack.text(), "A&nnuler une commande");
        fixture.window->LoadParg(40);
        swap(fixture, "12", "40");
        QCOMPARE(fixture.box().text(), "Ici.");
        QCOMPARE(told(), "Échange 12 et 40 : fait. Ctrl+Alt+Z l'annule.");
        QCOMPARE(takeBack.text(), "A&nnuler : Échange 12 et 40");
        fixture.type(" Enfin.");
        fixture.trigger("menuEditTakeBack");
        QCOMPARE(fixture.current(), 12); // where the text is now
        QCOMPARE(fixture.box().text(), "Ici. Enfin.");
        QCOMPARE(fixture.field("txtPargNum").text(), "12");
        QCOMPARE(told(), "Annulé : Échange 12 et 40. Ctrl+Alt+Y rétablit la commande.");
        QVERIFY(!takeBack.isEnabled() && redo.isEnabled());
        QCOMPARE(redo.text(), "Ré&tablir : Échange 12 et 40");
        QVERIFY(fixture.editorHasFocus());
        QTest::keyClick(&fixture.box(), Qt::Key_Y, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(fixture.current(), 40);
        QCOMPARE(fixture.box().text(), "Ici. Enfin.");
        QVERIFY(takeBack.isEnabled() && !redo.isEnabled());
    }

    void aLoadedParagraphIsTakenBackWithWhatWasTypedBefore()
    {
        WindowFixture fixture(AdventureBuilder({"1: Un", "2: Deux"}));
        fixture.type(" vite");
        fixture.prompts.expect("Ceci va effacer le texte actuel du paragraphe. Continuer?",
                               "Attention", Prompts::Buttons::YesNo, Prompts::Answer::Yes);
        fixture.prompts.expectFileDialog("Ouvrir Fichier RTF",
                                         fixture.adventure.file("a.rtf", rtfOf("Autre")));
        fixture.trigger("menuConvLoad1");
        QVERIFY(fixture.variables.ParagraphDirty);
        QCOMPARE(fixture.control<QAction>("menuEditTakeBack").text(),
                 "A&nnuler : Paragraphe chargé : 1");
        fixture.trigger("menuEditTakeBack");
        QCOMPARE(fixture.box().text(), "Un vite");
        fixture.trigger("menuEditRedoCommand");
        QCOMPARE(fixture.box().text(), "Autre");
    }

    void theListGoesBackAndForward()
    {
        WindowFixture fixture(AdventureBuilder({"1: Un", "2: Deux", "3: Trois"}));
        fixture.trigger("menuEditHistory");
        auto &window = fixture.control<QDialog>("HistoryWindow");
        auto &list = child<QTreeWidget>(window, "commands");
        const auto &takeBack = child<QPushButton>(window, "btnTakeBack");
        const auto &redo = child<QPushButton>(window, "btnRedo");
        const auto told = [&] { return child<QLabel>(window, "lblState").text(); };
        QVERIFY(told().startsWith("La liste est vide"));
        QVERIFY(!takeBack.isEnabled() && !redo.isEnabled());
        swap(fixture, "1", "2");
        swap(fixture, "2", "3");
        swap(fixture, "3", "30");
        QCOMPARE(rows(list, {1, 2, 3, 4}), "Échange 3 et 30 2 1 faite|Échange 2 et 3 2 2 faite|"
                                           "Échange 1 et 2 2 2 faite");
        list.setCurrentItem(list.topLevelItem(1));
        QCOMPARE(told(), "Revenir avant cette commande en annule 2 d'un coup.");
        click(window, "btnTakeBack");
        QCOMPARE(rows(list, {1, 4}),
                 "Échange 3 et 30 annulée|Échange 2 et 3 annulée|Échange 1 et 2 faite");
        QCOMPARE(list.currentIndex().row(), 1);
        QCOMPARE(told(), "Rétablir jusqu'à cette commande ne rétablit qu'elle.");
        QVERIFY(!takeBack.isEnabled() && redo.isEnabled());
        QCOMPARE(fixture.box().text(), "Deux");
        list.setCurrentItem(list.topLevelItem(0));
        click(window, "btnRedo");
        QCOMPARE(rows(list, {1, 4}),
                 "Échange 3 et 30 faite|Échange 2 et 3 faite|Échange 1 et 2 faite");
        QVERIFY(QFile::remove(
            WorkingFiles(fixture.variables).step(fixture.variables.History->keptDone().at(1))));
        list.setCurrentItem(list.topLevelItem(2));
        click(window, "btnTakeBack");
        QCOMPARE(rows(list, {4}), "faite|définitive : textes perdus|définitive : bloquée");
        QVERIFY(!takeBack.isEnabled() && told().contains("plus récente"));
        fixture.open(AdventureBuilder({"1: Un"}).bytes());
        QCOMPARE(list.topLevelItemCount(), 0);
    }

    void theTableFollowsFindsAndSaves()
    {
        WindowFixture fixture(AdventureBuilder({"2: Deux; \"et\" plus", "3: Trois", "10: Dix"}));
        fixture.trigger("menuEditNumbers");
        auto &window = fixture.control<QDialog>("NumberWindow");
        auto &table = child<QTreeView>(window, "table");
        auto &from = child<QComboBox>(window, "fromBox");
        auto &find = child<QLineEdit>(window, "txtNumber");
        const auto told = [&] { return child<QLabel>(window, "lblState").text(); };
        const auto shown = [&] { return rows(table, {0, 1, 2}); };
        QCOMPARE(shown(), "2 2 Deux; \"et\" plus|3 3 Trois|10 10 Dix");
        swap(fixture, "2", "10");
        swap(fixture, "3", "100");
        QCOMPARE(shown(), "10 2 Dix|2 10 Deux; \"et\" plus|3 100 Trois");
        QCOMPARE(told(), "3 paragraphes sur 3 ont un autre numéro.");
        child<QComboBox>(window, "sortBox").setCurrentIndex(0);
        QCOMPARE(rows(table, {0}), "2|3|10");
        const QHeaderView &header = *table.header();
        for (const char *sorted : {"10|3|2", "2|3|10"}) {
            QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, QPoint(20, 5));
            QCOMPARE(rows(table, {0}), sorted);
        }
        typeOver(find, "10");
        QCOMPARE(told(), "L'ancien 10 est devenu le 2. Le nouveau 10 était le 2.");
        QCOMPARE(table.currentIndex().row(), 2);
        QTest::keyClick(&find, Qt::Key_Return);
        QCOMPARE(table.currentIndex().row(), 0);
        table.setFocus();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), "2\t10\tDeux; \"et\" plus");
        QTest::keyClick(&table, Qt::Key_Return);
        QCOMPARE(fixture.current(), 10);
        from.setCurrentIndex(1);
        QCOMPARE(shown(), "2 2 Dix|3 100 Trois|10 10 Deux; \"et\" plus");
        const QString path = fixture.adventure.path("t.csv");
        fixture.prompts.expectFileDialog("Enregistrer la Table", path, "Le Loup numéros");
        click(window, "btnSave");
        QCOMPARE(fixture.adventure.content("t.csv"),
                 "\xEF\xBB\xBF\"Ancien numéro\";\"Nouveau numéro\";\"Premiers mots\"\r\n"
                 "2;2;\"Dix\"\r\n3;100;\"Trois\"\r\n10;10;\"Deux; \"\"et\"\" plus\"\r\n");
        fixture.prompts.expectFileDialog("Enregistrer la Table", fixture.variables.AdventurePath,
                                         "Le Loup numéros");
        fixture.prompts.expect("Erreur pendant l'écriture du fichier.", "BUG");
        click(window, "btnSave");
        fixture.trigger("menuEditTakeBack");
        QCOMPARE(shown(), "2 2 Dix|3 3 Trois|10 10 Deux; \"et\" plus"); // from now to now
        fixture.type(" enfin");
        fixture.window->SaveCurParg();
        QCOMPARE(rows(table, {2}), "Dix|Trois|Deux; \"et\" plus enfin");
    }
};

QTEST_MAIN(tst_historyMenu)
#include "tst_historyMenu.moc"
