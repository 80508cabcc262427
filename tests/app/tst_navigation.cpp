#include "WindowFixture.h"

#include <QLineEdit>
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
    void commandsGoToTheirParagraph_data();
    void commandsGoToTheirParagraph();
    void nothingMovesWithoutAnAdventure();
    void searchThatFindsNothingSavesNothing();
    void enterReadsTheNumberBox_data();
    void enterReadsTheNumberBox();
    void unconfirmedNumberIsDropped();
    void firstFreeSkipsWrittenAndReserved();
    void firstFreeOfAFullAdventure();
    void ctrlClickFollowsTheNumber();
    void paragraphThatCannotBeSavedIsNotLeft();
    void damagedParagraphIsNotEntered();
};

void tst_navigation::commandsGoToTheirParagraph_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("item");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("beeps");
    const auto row = [](const char *name, const char *button, const char *item, int from, int to,
                        int beeps = 0) {
        QTest::newRow(name) << QString::fromLatin1(button) << QString::fromLatin1(item) << from
                            << to << beeps;
    };
    row("first", "btnFirst", "menuNavFirst", 5, 2);
    row("last", "btnLast", "menuNavLast", 5, 8);
    row("next", "btnNext", "menuNavNext", 3, 4);
    row("next at the end", "btnNext", "menuNavNext", 2000, 2000);
    row("next to the end", "btnNext", "menuNavNext", 1999, 2000);
    row("previous", "btnPrev", "menuNavPrev", 3, 2);
    row("previous reaches 0", "btnPrev", "menuNavPrev", 1, 0);
    row("previous at 0", "btnPrev", "menuNavPrev", 0, 0);
    row("next typed", "btnNextTyped", "menuNavNextTyped", 3, 5);
    row("no next typed", "btnNextTyped", "menuNavNextTyped", 8, 8, 1);
    row("previous typed", "btnPrevTyped", "menuNavPrevTyped", 2000, 8);
    row("no previous typed", "btnPrevTyped", "menuNavPrevTyped", 2, 2, 1);
    row("next empty", "btnNextEmpty", "menuNavNextEmpty", 2, 4);
    row("no next empty", "btnNextEmpty", "menuNavNextEmpty", 2000, 2000, 1);
    row("previous empty", "btnPrevEmpty", "menuNavPrevEmpty", 3, 1);
    row("no previous empty", "btnPrevEmpty", "menuNavPrevEmpty", 0, 0, 1);
}

void tst_navigation::commandsGoToTheirParagraph()
{
    QFETCH(const QString, button);
    QFETCH(const QString, item);
    QFETCH(const int, from);
    QFETCH(const int, to);
    QFETCH(const int, beeps);
    const WindowFixture fixture(fourParagraphs());
    for (const bool byMenu : {false, true}) {
        fixture.window->LoadParg(from);
        fixture.control<QLineEdit>("txtPargNum").setFocus();
        if (byMenu)
            fixture.trigger(item.toLatin1());
        else
            fixture.click(button.toLatin1());
        QCOMPARE(fixture.current(), to);
        QCOMPARE(fixture.control<QLineEdit>("txtPargNum").text(), QString::number(to));
        QCOMPARE(fixture.prompts.beeps(), byMenu ? 2 * beeps : beeps);
        if (from != to || beeps > 0)
            QVERIFY(fixture.box().hasFocus());
    }
}

void tst_navigation::nothingMovesWithoutAnAdventure()
{
    const WindowFixture fixture;
    auto &number = fixture.control<QLineEdit>("txtPargNum");
    QCOMPARE(number.text(), QStringLiteral("Vide"));
    const QString welcome = fixture.box().text();
    for (const char *button : {"btnFirst", "btnLast", "btnNext", "btnPrev", "btnNextTyped",
                               "btnPrevTyped", "btnNextEmpty", "btnPrevEmpty"})
        fixture.click(button);
    number.selectAll();
    QTest::keyClicks(&number, QStringLiteral("abc12"));
    QCOMPARE(number.text(), QStringLiteral("abc12"));
    QTest::keyClick(&number, Qt::Key_Return);
    QCOMPARE(fixture.prompts.beeps(), 0);
    QVERIFY(fixture.entries("theList").isEmpty());
    QCOMPARE(fixture.box().text(), welcome);
}

void tst_navigation::searchThatFindsNothingSavesNothing()
{
    const WindowFixture fixture(fourParagraphs().current(8));
    fixture.type(QStringLiteral(" Vraiment."));
    fixture.click("btnNextTyped");
    QCOMPARE(fixture.prompts.beeps(), 1);
    QVERIFY(fixture.adventure.variables.ParagraphDirty);
    QCOMPARE(fixture.adventure.variables.Extracted.at(8), quint8(0));
}

void tst_navigation::enterReadsTheNumberBox_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("beeps");
    QTest::newRow("a written one") << "8" << 8 << 0;
    QTest::newRow("0") << "0" << 0 << 0;
    QTest::newRow("the last") << "2000" << 2000 << 0;
    QTest::newRow("beyond the last") << "2001" << 3 << 1;
    QTest::newRow("just below a half beyond") << "2000.4" << 2000 << 0;
    QTest::newRow("rounded up") << "12.7" << 13 << 0;
    QTest::newRow("half to even, down") << "12.5" << 12 << 0;
    QTest::newRow("half to even, up") << "13.5" << 14 << 0;
    QTest::newRow("nothing reads 0") << "" << 0 << 0;
    QTest::newRow("letters are dropped with a beep each") << "a1b2" << 12 << 2;
    QTest::newRow("a sign is dropped with a beep") << "-5" << 5 << 1;
}

void tst_navigation::enterReadsTheNumberBox()
{
    QFETCH(const QString, typed);
    QFETCH(const int, to);
    QFETCH(const int, beeps);
    const WindowFixture fixture(fourParagraphs().current(3));
    auto &number = fixture.control<QLineEdit>("txtPargNum");
    number.setFocus();
    QTest::keyClick(&number, Qt::Key_Backspace);
    QTest::keyClicks(&number, typed);
    QTest::keyClick(&number, Qt::Key_Return);
    QCOMPARE(fixture.current(), to);
    QCOMPARE(number.text(), QString::number(to));
    QCOMPARE(fixture.prompts.beeps(), beeps);
    QCOMPARE(fixture.box().hasFocus(), to != 3);
}

void tst_navigation::unconfirmedNumberIsDropped()
{
    const WindowFixture fixture(fourParagraphs().current(3));
    auto &number = fixture.control<QLineEdit>("txtPargNum");
    number.setFocus();
    QTest::keyClicks(&number, QStringLiteral("8"));
    fixture.box().setFocus();
    QCOMPARE(number.text(), QStringLiteral("3"));
    QCOMPARE(fixture.current(), 3);
}

void tst_navigation::firstFreeSkipsWrittenAndReserved()
{
    WindowFixture fixture(
        AdventureBuilder({QStringLiteral("1: Allez au 3 ou au 4."), QStringLiteral("2: Fin.")}));
    // 5 is reserved by a text that only the command itself saves.
    fixture.type(QStringLiteral(" Ou au 5."));
    fixture.prompts.expect(QStringLiteral("Paragraphe libre : 6"), QStringLiteral("Voilà"));
    fixture.trigger("menuNavFirstFree");
    QCOMPARE(fixture.current(), 1);
    QVERIFY(!fixture.adventure.variables.ParagraphDirty);
}

void tst_navigation::firstFreeOfAFullAdventure()
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

void tst_navigation::ctrlClickFollowsTheNumber()
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

void tst_navigation::paragraphThatCannotBeSavedIsNotLeft()
{
    WindowFixture fixture(fourParagraphs().current(3));
    fixture.type(QStringLiteral(" Du neuf."));
    fixture.adventure.variables.WorkingFolder = fixture.adventure.path(QStringLiteral("parti/"));
    fixture.prompts.expect(QStringLiteral("Erreur pendant l'écriture du fichier."),
                           QStringLiteral("BUG"));
    fixture.click("btnNext");
    QCOMPARE(fixture.current(), 3);
    QCOMPARE(fixture.box().text(), QStringLiteral("Rien. Du neuf."));
    QVERIFY(fixture.adventure.variables.ParagraphDirty);
}

void tst_navigation::damagedParagraphIsNotEntered()
{
    WindowFixture fixture(fourParagraphs().rawText(5, "no rich text").current(3));
    fixture.prompts.expect(QStringLiteral("Erreur de lecture de fichier."), QStringLiteral("BUG"));
    fixture.click("btnNextTyped");
    QCOMPARE(fixture.current(), 3);
    QCOMPARE(fixture.box().text(), QStringLiteral("Rien."));
    QCOMPARE(fixture.entries("theList"), QStringList{QStringLiteral("     3")});
}

QTEST_MAIN(tst_navigation)
#include "tst_navigation.moc"
