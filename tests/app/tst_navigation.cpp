#include "WindowFixture.h"

#include <algorithm>

namespace
{
// Written: 2, 3, 5 and 8.
AdventureBuilder fourParagraphs()
{
    return AdventureBuilder({QStringLiteral("2: Allez au 5 ou au 8."), QStringLiteral("3: Rien."),
                             QStringLiteral("5: Retour au 2, puis au 2."),
                             QStringLiteral("8: Fin.")});
}
} // namespace

class tst_navigation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandsGoToTheirParagraph_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("beeps");
        const auto row = [](const char *name, const char *command, int from, int to,
                            int beeps = 0) {
            QTest::newRow(name) << QByteArray(command) << from << to << beeps;
        };
        row("first", "First", 5, 2);
        row("last", "Last", 5, 8);
        row("next", "Next", 3, 4);
        row("next at the end", "Next", 2000, 2000);
        row("next to the end", "Next", 1999, 2000);
        row("previous reaches 0", "Prev", 1, 0);
        row("previous at 0", "Prev", 0, 0);
        row("next typed", "NextTyped", 3, 5);
        row("no next typed", "NextTyped", 8, 8, 1);
        row("previous typed", "PrevTyped", 2000, 8);
        row("no previous typed", "PrevTyped", 2, 2, 1);
        row("next empty", "NextEmpty", 2, 4);
        row("no next empty", "NextEmpty", 2000, 2000, 1);
        row("previous empty", "PrevEmpty", 3, 1);
        row("no previous empty", "PrevEmpty", 0, 0, 1);
    }
    void commandsGoToTheirParagraph()
    {
        QFETCH(const QByteArray, command);
        QFETCH(const int, from);
        QFETCH(const int, to);
        QFETCH(const int, beeps);
        const WindowFixture fixture(fourParagraphs());
        for (const bool byMenu : {false, true}) {
            fixture.window->LoadParg(from);
            fixture.field("txtPargNum").setFocus();
            if (byMenu)
                fixture.trigger("menuNav" + command);
            else
                fixture.click("btn" + command);
            QCOMPARE(fixture.current(), to);
            QCOMPARE(fixture.field("txtPargNum").text(), QString::number(to));
            QCOMPARE(fixture.prompts.beeps(), byMenu ? 2 * beeps : beeps);
            if (from != to || beeps > 0)
                QVERIFY(fixture.box().hasFocus());
        }
    }

    void nothingMovesWithoutAnAdventure()
    {
        const WindowFixture fixture;
        const QString welcome = fixture.box().text();
        for (const char *button : {"btnFirst", "btnLast", "btnNext", "btnPrev", "btnNextTyped",
                                   "btnPrevTyped", "btnNextEmpty", "btnPrevEmpty", "btnVider"})
            fixture.click(button);
        QCOMPARE(fixture.field("txtPargNum").text(), QStringLiteral("Vide"));
        fixture.enter(fixture.field("txtPargNum"), "abc12");
        QCOMPARE(fixture.prompts.beeps(), 0);
        QVERIFY(fixture.entries("theList").isEmpty());
        QCOMPARE(fixture.box().text(), welcome);
    }

    void searchThatFindsNothingSavesNothing()
    {
        const WindowFixture fixture(fourParagraphs().current(8));
        fixture.type(" Vraiment.");
        fixture.click("btnNextTyped");
        QVERIFY(fixture.adventure.variables.ParagraphDirty);
        QCOMPARE(fixture.adventure.variables.Extracted.at(8), quint8(0));
    }

    void enterReadsTheNumberBox_data()
    {
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("beeps");
        const auto row = [](const char *name, const QByteArray &typed, int to, int beeps = 0) {
            QTest::newRow(name) << typed << to << beeps;
        };
        row("a written one", "8", 8);
        row("the last", "2000", 2000);
        row("beyond the last", "2001", 3, 1);
        row("just below a half beyond", "2000.4", 2000);
        row("rounded up", "12.7", 13);
        row("half to even, down", "12.5", 12);
        row("half to even, up", "13.5", 14);
        row("nothing reads 0", "", 0);
        row("letters are dropped with a beep each", "a1b2", 12, 2);
        row("a sign is dropped with a beep", "-5", 5, 1);
    }
    void enterReadsTheNumberBox()
    {
        QFETCH(const QByteArray, typed);
        QFETCH(const int, to);
        QFETCH(const int, beeps);
        const WindowFixture fixture(fourParagraphs().current(3));
        fixture.enter(fixture.field("txtPargNum"), typed);
        QCOMPARE(fixture.current(), to);
        QCOMPARE(fixture.field("txtPargNum").text(), QString::number(to));
        QCOMPARE(fixture.prompts.beeps(), beeps);
        QCOMPARE(fixture.box().hasFocus(), to != 3);
    }

    void unconfirmedNumberIsDropped()
    {
        const WindowFixture fixture(fourParagraphs().current(3));
        fixture.field("txtPargNum").setFocus();
        QTest::keyClicks(&fixture.field("txtPargNum"), QStringLiteral("8"));
        fixture.box().setFocus();
        QCOMPARE(fixture.field("txtPargNum").text(), QStringLiteral("3"));
        QCOMPARE(fixture.current(), 3);
    }

    void firstFreeSavesFirst()
    {
        WindowFixture fixture(AdventureBuilder(
            {QStringLiteral("1: Allez au 3 ou au 4."), QStringLiteral("2: Fin.")}));
        // 5 is reserved by a text that only the command itself saves.
        fixture.type(" Ou au 5.");
        fixture.prompts.expect(QStringLiteral("Paragraphe libre : 6"), QStringLiteral("Voilà"));
        fixture.trigger("menuNavFirstFree");
        QCOMPARE(fixture.current(), 1);
        QVERIFY(!fixture.adventure.variables.ParagraphDirty);
    }

    void firstFreeOfAFullAdventure()
    {
        WindowFixture fixture(fourParagraphs());
        Variables &variables = fixture.adventure.variables;
        variables.LowestWritten = 1;
        variables.HighestWritten = Variables::LastParagraph;
        std::fill(variables.Written.begin() + 1, variables.Written.end() - 1, quint8(1));
        fixture.prompts.expect(QStringLiteral("Tous les paragraphes sont écrits ou réservés !"),
                               QStringLiteral("Aïe !"));
        fixture.trigger("menuNavFirstFree");
    }

    void ctrlClickFollowsTheNumber()
    {
        const WindowFixture fixture(fourParagraphs().current(2));
        RtfBox &box = fixture.box();
        // The right half of the last digit: a click there puts the caret behind the number.
        QTextCursor behindNumber(box.document());
        behindNumber.setPosition(static_cast<int>(box.text().indexOf(u'8')) + 1);
        const QPoint point = box.cursorRect(behindNumber).center() - QPoint(3, 0);
        QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, point);
        QCoreApplication::processEvents();
        QCOMPARE(fixture.current(), 2);
        QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::ControlModifier, point);
        QTRY_COMPARE(fixture.current(), 8);
    }

    void paragraphThatCannotBeSavedIsNotLeft()
    {
        WindowFixture fixture(fourParagraphs().current(3));
        fixture.type(" Du neuf.");
        fixture.adventure.variables.WorkingFolder =
            fixture.adventure.path(QStringLiteral("parti/"));
        fixture.prompts.expect(QStringLiteral("Erreur pendant l'écriture du fichier."),
                               QStringLiteral("BUG"));
        fixture.click("btnNext");
        QCOMPARE(fixture.current(), 3);
        QCOMPARE(fixture.box().text(), QStringLiteral("Rien. Du neuf."));
        QVERIFY(fixture.adventure.variables.ParagraphDirty);
    }

    void damagedParagraphIsNotEntered()
    {
        WindowFixture fixture(fourParagraphs().rawText(5, "no rich text").current(3));
        fixture.prompts.expect(QStringLiteral("Erreur de lecture de fichier."),
                               QStringLiteral("BUG"));
        fixture.click("btnNextTyped");
        QCOMPARE(fixture.current(), 3);
        QCOMPARE(fixture.box().text(), QStringLiteral("Rien."));
        QCOMPARE(fixture.entries("theList"), QStringLiteral("     3"));
    }
};

QTEST_MAIN(tst_navigation)
#include "tst_navigation.moc"
