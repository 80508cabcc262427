#include "WindowFixture.h"

#include "editor/VisitedTexts.h"
#include "renumber/MapBuilders.h"
#include "renumber/RenumberParagraphs.h"
#include "store/ParagraphTexts.h"
#include "store/ParagraphTransaction.h"
#include "support/TestTable.h"

#include <QScrollBar>

using Command = std::function<void(WindowFixture &fixture)>;
Q_DECLARE_METATYPE(Command)

namespace
{
void goTo(const WindowFixture &fixture, int n)
{
    fixture.enter(fixture.field("txtPargNum"), QByteArray::number(n).constData());
}
} // namespace

class tst_visitedTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void authorFindsTheTextAsItWasLeft()
    {
        const WindowFixture fixture(AdventureBuilder({"3: Rien.", "12: Début."}).current(12));
        RtfBox &box = fixture.box();
        box.textCursor().insertText(QString("au 7\n").repeated(80));
        fixture.type(" Fin");
        box.select(400, 3);
        const QString text = box.text();
        const int scrolled = box.verticalScrollBar()->value();
        const int right = box.cursorRect().right();
        QVERIFY(scrolled > 0);
        for (const int zoom : {100, 200}) {
            goTo(fixture, 3);
            QVERIFY(!fixture.control<QAction>("menuEditUndo").isEnabled());
            box.setZoom(zoom);
            goTo(fixture, 12);
            QCOMPARE(box.text(), text);
            QVERIFY(box.selStart() == 400 && box.selLength() == 3);
            QVERIFY(zoom == 200 || box.verticalScrollBar()->value() == scrolled);
        }
        QVERIFY(box.cursorRect().right() > right * 3 / 2);
        QVERIFY(!fixture.variables.ParagraphDirty);
        fixture.trigger("menuEditUndo");
        QCOMPARE(box.text(), text.chopped(3));
        QVERIFY(fixture.variables.ParagraphDirty);
        goTo(fixture, 3);
        goTo(fixture, 12);
        fixture.trigger("menuEditRedo");
        QCOMPARE(box.text(), text);
        while (fixture.control<QAction>("menuEditUndo").isEnabled())
            fixture.trigger("menuEditUndo");
        QCOMPARE(box.text(), "Début.");
    }

    void stepsFollowTheTextAndNoOther_data()
    {
        const auto swap = [](int a, int b) {
            return Command([a, b](WindowFixture &f) {
                RenumberParagraphs(f.variables, SwapMap(a, b), {"Échange", Garbled::AsTheyStand},
                                   [](int, int) {});
                f.window->LoadParg(f.current());
            });
        };
        const Command replace = [](WindowFixture &f) {
            ParagraphTransaction transaction(f.variables, {"Commande", {}});
            transaction.change({14, 12, GetParagraphRtf(f.variables, 12), QString(), false});
            transaction.empty(12, false);
            transaction.commit();
            f.window->LoadParg(f.current());
        };
        const Command damage = [](WindowFixture &f) {
            f.adventure.file("Dossier Usmira/LL-0012.rtf", "no rich text");
            f.prompts.expect("Paragraphes illisibles : 12.", "BUG");
        };
        const Command reopen = [](WindowFixture &f) {
            f.trigger("menuAvSave");
            f.window->openCommandLine(f.variables.AdventurePath);
        };
        const Command save = [](WindowFixture &f) { f.trigger("menuAvSave"); };
        // From where the command is given, and where the text is to be found then.
        addTable<int, Command, int, bool>({"from", "command", "number", "kept"},
                                          {{"saved", 3, save, 12, true},
                                           {"moved", 3, swap(12, 20), 20, true},
                                           {"moved on the screen", 12, swap(12, 20), 20, true},
                                           {"rewritten", 3, swap(7, 8), 12, false},
                                           {"rewritten on the screen", 12, swap(7, 8), 12, false},
                                           {"another of the same words", 3, replace, 12, false},
                                           {"another, on the screen", 12, replace, 12, false},
                                           {"damaged", 3, damage, 12, false},
                                           {"opened again", 3, reopen, 12, false}});
    }
    void stepsFollowTheTextAndNoOther()
    {
        QFETCH(const int, from);
        QFETCH(const Command, command);
        QFETCH(const int, number);
        WindowFixture fixture(AdventureBuilder({"12: Allez au 7.", "14: Un autre."}).current(12));
        fixture.type(" Vite");
        fixture.window->SaveCurParg();
        goTo(fixture, from);
        command(fixture);
        goTo(fixture, number);
        QTEST(fixture.box().document()->isUndoAvailable(), "kept");
        QVERIFY(!fixture.variables.ParagraphDirty);
    }

    void theOldestAreForgotten()
    {
        VisitedTexts texts;
        const int behind = static_cast<int>(VisitedTexts::Most) + 1;
        for (int n = 1; n <= behind; ++n)
            texts.leave(n, {"a", {}, nullptr});
        QVERIFY(!texts.comeTo(1, "a") && texts.comeTo(2, "a") && texts.comeTo(behind, "a"));
        const QByteArray large(40 * 1024 * 1024, 'b');
        for (const int n : {100, 101})
            texts.leave(n, {large, {}, nullptr});
        texts.leave(102, {large + large, {}, nullptr});
        QVERIFY(!texts.comeTo(3, "a") && !texts.comeTo(100, large) && texts.comeTo(101, large));
        RtfBox box;
        box.textCursor().insertText(QString("xyz\n").repeated(10'000));
        box.undo();
        QVERIFY(box.page().memory() > 80'000); // taken back, and yet there
    }
};

QTEST_MAIN(tst_visitedTexts)
#include "tst_visitedTexts.moc"
