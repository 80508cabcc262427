#include "WindowFixture.h"

#include <new>

namespace
{
// Written: 2, 3, 5 and 8.
AdventureBuilder fourParagraphs()
{
    return AdventureBuilder(
        {"2: Allez au 5 ou au 8.", "3: Rien.", "5: Retour au 2, puis au 2.", "8: Fin."});
}

// Where a command leads, by what the number box shows, and "!" for each beep.
QString outcome(const WindowFixture &fixture, const std::function<void()> &command)
{
    const int before = fixture.prompts.beeps();
    command();
    const QString shown = fixture.field("txtPargNum").text();
    return (shown.toInt() == fixture.current() ? shown : shown + " is wrong") +
           QString("!").repeated(fixture.prompts.beeps() - before);
}
} // namespace

class tst_navigation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandsGoToTheirParagraph()
    {
        // The command, from where, and to where.
        const QStringList cases =
            QString("First 5 2|Last 5 8|Next 3 4|Next 1999 2000|Next 2000 2000|Prev 1 0|Prev 0 0|"
                    "NextTyped 3 5|NextTyped 8 8!|PrevTyped 2000 8|PrevTyped 2 2!|NextEmpty 2 "
                    "4|NextEmpty 2000 2000!|PrevEmpty 3 1|PrevEmpty 0 0!")
                .split('|');
        const WindowFixture fixture(fourParagraphs());
        for (const QString &text : cases) {
            const QStringList words = text.split(' ');
            const QByteArray command = words.first().toLatin1();
            for (const bool button : {true, false}) {
                fixture.window->LoadParg(words.at(1).toInt());
                fixture.field("txtPargNum").setFocus();
                const QString to = outcome(fixture, [&] {
                    button ? fixture.click("btn" + command) : fixture.trigger("menuNav" + command);
                });
                QVERIFY2(to == words.last(), qPrintable(text + " but came to " + to));
                QVERIFY(to == words.at(1) || fixture.box().hasFocus());
            }
        }
    }

    void nothingHappensWithoutAnAdventure()
    {
        const WindowFixture fixture;
        fixture.box().setText("Bienvenue");
        fixture.box().selectAll();
        for (const char *button :
             {"btnFirst", "btnLast", "btnNext", "btnPrev", "btnNextTyped", "btnPrevTyped",
              "btnNextEmpty", "btnPrevEmpty", "btnVider", "btnBold"})
            fixture.click(button);
        QTest::keyClick(&fixture.box(), Qt::Key_B, Qt::ControlModifier);
        QCOMPARE(fixture.box().selBold(), std::optional(false));
        fixture.type("x");
        QCOMPARE(fixture.field("txtPargNum").text(), "Vide");
        fixture.enter(fixture.field("txtPargNum"), "abc12");
        QCOMPARE(fixture.prompts.beeps(), 0);
        QVERIFY(fixture.entries("theList").isEmpty() && !fixture.variables.ParagraphDirty);
        QCOMPARE(fixture.box().text(), "Bienvenue");
    }

    void enterReadsTheNumberBox()
    {
        // Halves go to the even number; letters and signs are dropped with a beep each.
        const std::pair<const char *, const char *> cases[] = {
            {"8", "8"},     {"2000", "2000"}, {"2001", "3!"}, {"2000.4", "2000"}, {"12.7", "13"},
            {"12.5", "12"}, {"13.5", "14"},   {"", "0"},      {"a1b2", "12!!"},   {"-5", "5!"}};
        const WindowFixture fixture(fourParagraphs());
        for (const auto &[typed, to] : cases) {
            fixture.window->LoadParg(3);
            QCOMPARE(
                outcome(fixture,
                        [&, text = typed] { fixture.enter(fixture.field("txtPargNum"), text); }),
                to);
            QCOMPARE(fixture.box().hasFocus(), fixture.current() != 3);
        }
    }

    void numberThatIsNotConfirmedIsDropped()
    {
        const WindowFixture fixture(fourParagraphs().current(3));
        QLineEdit &number = fixture.field("txtPargNum");
        for (const bool escape : {true, false}) {
            number.setFocus();
            QTest::keyClicks(&number, "8");
            if (escape)
                QTest::keyClick(&number, Qt::Key_Escape);
            else
                fixture.box().setFocus();
            QCOMPARE(number.text(), "3");
            QVERIFY(fixture.box().hasFocus() && fixture.current() == 3);
        }
    }

    void firstFreeSavesFirst()
    {
        WindowFixture fixture(AdventureBuilder({"1: Allez au 3 ou au 4.", "2: Fin."}));
        // 5 is reserved by a text that only the command itself saves.
        fixture.type(" Ou au 5.");
        fixture.prompts.expect("Paragraphe libre : 6", "Voilà");
        fixture.trigger("menuNavFirstFree");
        QCOMPARE(fixture.current(), 1);
        QVERIFY(!fixture.variables.ParagraphDirty);
    }

    void ctrlClickFollowsANumberOfAParagraph()
    {
        const std::tuple<QString, bool, int> cases[] = {
            {"8", false, 8}, {"8", true, 8}, {"2024", false, 2}, {"0", true, 2}};
        for (const auto &[number, selected, to] : cases) {
            const WindowFixture fixture(
                AdventureBuilder({"2: Allez au 8, en 2024 ou 0."}).current(2));
            RtfBox &box = fixture.box();
            const auto at = static_cast<int>(box.text().indexOf(number));
            const auto length = static_cast<int>(number.size());
            // The right half of the last digit: a click there puts the caret behind the number.
            QTextCursor behindNumber(box.document());
            behindNumber.setPosition(at + length);
            const QPoint point = box.cursorRect(behindNumber).center() - QPoint(3, 0);
            for (const Qt::KeyboardModifier key : {Qt::NoModifier, Qt::ControlModifier}) {
                QCOMPARE(fixture.current(), 2);
                if (selected)
                    box.select(at, length);
                QTest::mouseClick(box.viewport(), Qt::LeftButton, key, point);
                QCoreApplication::processEvents();
            }
            QCOMPARE(fixture.current(), to);
        }
    }

    void historyGoesBackAndForward()
    {
        const WindowFixture fixture(fourParagraphs().current(3));
        const auto press = [&fixture](Qt::Key key) {
            QTest::keyClick(&fixture.box(), key, Qt::AltModifier);
            return fixture.current();
        };
        QCOMPARE(press(Qt::Key_Left), 3);
        fixture.click("btnNext");
        fixture.click("btnLast");
        QCOMPARE(press(Qt::Key_Left), 4);
        QCOMPARE(press(Qt::Key_Left), 3);
        QVERIFY(!fixture.control<QAction>("menuNavBack").isEnabled());
        QCOMPARE(press(Qt::Key_Right), 4);
        fixture.click("btnFirst"); // what was gone back from is forgotten
        QCOMPARE(press(Qt::Key_Right), 2);
        QCOMPARE(press(Qt::Key_Left), 4);
    }

    void whatNobodyForesawLosesNothing()
    {
        struct Failing : PromptRecorder {
            void beep() override { throw std::bad_alloc(); }
        };
        TestAdventure adventure;
        Failing prompts;
        formUsmira window(adventure.variables, prompts);
        window.openCommandLine(adventure.file("a.usm", fourParagraphs().current(8).bytes()));
        auto *box = window.findChild<RtfBox *>();
        box->moveCursor(QTextCursor::End);
        QTest::keyClicks(box, " Vraiment.");
        prompts.expect("Une action a échoué. Ce qui était tapé a été mis à l'abri.", "BUG");
        window.findChild<QAction *>("menuNavNextTyped")->trigger();
        QCOMPARE(adventure.workingFiles().filter(".rtf"), QStringList("a-0008.rtf"));
        QCOMPARE(box->text(), "Fin. Vraiment.");
    }

    void paragraphThatCannotBeSavedIsNotLeft()
    {
        WindowFixture fixture(fourParagraphs().current(3));
        fixture.type(" Du neuf.");
        fixture.variables.WorkingFolder = fixture.adventure.file("fichier", {}) + u'/';
        fixture.prompts.expect("Erreur pendant l'écriture du fichier.", "BUG");
        fixture.click("btnNext");
        QCOMPARE(fixture.current(), 3);
        QCOMPARE(fixture.box().text(), "Rien. Du neuf.");
        QVERIFY(fixture.variables.ParagraphDirty);
    }

    void damagedParagraphIsShownEmptyAndReplacedOnlyWithLeave()
    {
        WindowFixture fixture;
        fixture.prompts.expect("Paragraphes illisibles : 5.", "BUG");
        fixture.open(fourParagraphs().rawText(5, "no rich text").current(3).bytes());
        fixture.click("btnNextTyped");
        QCOMPARE(fixture.current(), 5);
        QCOMPARE(fixture.box().text(), QString());
        fixture.type("a moi");
        for (const auto answer : {Prompts::Answer::No, Prompts::Answer::Yes}) {
            fixture.prompts.expect(
                "Le texte du paragraphe 5 est illisible. Le remplacer par le vôtre "
                "? Les octets illisibles seront gardés dans le fichier Le Loup "
                "(illisible 0005).bin.",
                "Attention", Prompts::Buttons::YesNo, answer);
            fixture.click("btnNext");
            QCOMPARE(fixture.current(), answer == Prompts::Answer::No ? 5 : 6);
        }
    }
};

QTEST_MAIN(tst_navigation)
#include "tst_navigation.moc"
