#include "WindowFixture.h"

#include <QStatusBar>

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
        fixture.inDialog([&] { fixture.trigger("menuComSwap"); },
                         [&](QDialog &dialog) {
                             typeOver(child<QLineEdit>(dialog, "txtOne"), "12");
                             typeOver(child<QLineEdit>(dialog, "txtTwo"), "40");
                             click(dialog, "OKButton");
                         });
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
};

QTEST_MAIN(tst_historyMenu)
#include "tst_historyMenu.moc"
