#include "WindowFixture.h"

#include <new>

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
    void commandsGoToTheirParagraph()
    {
        struct Case {
            const char *command;
            int from, to, beeps;
        };
        const Case cases[] = {{"First", 5, 2, 0},
                              {"Last", 5, 8, 0},
                              {"Next", 3, 4, 0},
                              {"Next", 2000, 2000, 0},
                              {"Next", 1999, 2000, 0},
                              {"Prev", 1, 0, 0},
                              {"Prev", 0, 0, 0},
                              {"NextTyped", 3, 5, 0},
                              {"NextTyped", 8, 8, 1},
                              {"PrevTyped", 2000, 8, 0},
                              {"PrevTyped", 2, 2, 1},
                              {"NextEmpty", 2, 4, 0},
                              {"NextEmpty", 2000, 2000, 1},
                              {"PrevEmpty", 3, 1, 0},
                              {"PrevEmpty", 0, 0, 1}};
        const WindowFixture fixture(fourParagraphs());
        const QLineEdit &number = fixture.field("txtPargNum");
        const auto text = QStringLiteral("%1 from %2: %3 %4, %5 beeps");
        for (const Case &c : cases) {
            for (const QString &control : {QStringLiteral("btn"), QStringLiteral("menuNav")}) {
                fixture.window->LoadParg(c.from);
                fixture.field("txtPargNum").setFocus();
                const QString name = control + QLatin1String(c.command);
                const int before = fixture.prompts.beeps();
                if (control == QStringLiteral("btn"))
                    fixture.click(name.toLatin1());
                else
                    fixture.trigger(name.toLatin1());
                QCOMPARE(text.arg(name)
                             .arg(c.from)
                             .arg(fixture.current())
                             .arg(number.text())
                             .arg(fixture.prompts.beeps() - before),
                         text.arg(name).arg(c.from).arg(c.to).arg(c.to).arg(c.beeps));
                if (c.from != c.to || c.beeps > 0)
                    QVERIFY(fixture.box().hasFocus());
            }
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

    void enterReadsTheNumberBox()
    {
        struct Case {
            const char *typed;
            int to, beeps;
        };
        // Halves go to the even number; letters and signs are dropped with a beep each.
        const Case cases[] = {{"8", 8, 0},         {"2000", 2000, 0}, {"2001", 3, 1},
                              {"2000.4", 2000, 0}, {"12.7", 13, 0},   {"12.5", 12, 0},
                              {"13.5", 14, 0},     {"", 0, 0},        {"a1b2", 12, 2},
                              {"-5", 5, 1}};
        const WindowFixture fixture(fourParagraphs());
        const QLineEdit &number = fixture.field("txtPargNum");
        const auto text = QStringLiteral("'%1' leads to %2 %3, %4 beeps");
        for (const Case &c : cases) {
            fixture.window->LoadParg(3);
            const int before = fixture.prompts.beeps();
            fixture.enter(fixture.field("txtPargNum"), c.typed);
            const auto typed = QString::fromLatin1(c.typed);
            QCOMPARE(text.arg(typed)
                         .arg(fixture.current())
                         .arg(number.text())
                         .arg(fixture.prompts.beeps() - before),
                     text.arg(typed).arg(c.to).arg(c.to).arg(c.beeps));
            QCOMPARE(fixture.box().hasFocus(), c.to != 3);
        }
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

    void ctrlClickFollowsANumberOfAParagraph()
    {
        struct Case {
            const char *number;
            bool selected;
            int to;
        };
        const Case cases[] = {{"8", false, 8}, {"8", true, 8}, {"2024", false, 2}, {"0", true, 2}};
        for (const Case &c : cases) {
            const WindowFixture fixture(
                AdventureBuilder({QStringLiteral("2: Allez au 8, en 2024 ou 0.")}).current(2));
            RtfBox &box = fixture.box();
            // The right half of the last digit: a click there puts the caret behind the number.
            const QString number = QString::fromLatin1(c.number);
            const auto at = static_cast<int>(box.text().indexOf(number));
            QTextCursor behindNumber(box.document());
            behindNumber.setPosition(at + static_cast<int>(number.size()));
            const QPoint point = box.cursorRect(behindNumber).center() - QPoint(3, 0);
            QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, point);
            QCoreApplication::processEvents();
            QCOMPARE(fixture.current(), 2);
            if (c.selected)
                box.select(at, static_cast<int>(number.size()));
            QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::ControlModifier, point);
            QCoreApplication::processEvents();
            QCOMPARE(fixture.current(), c.to);
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

    void escapeLeavesTheNumberBox()
    {
        const WindowFixture fixture(fourParagraphs().current(3));
        QLineEdit &number = fixture.field("txtPargNum");
        number.setFocus();
        QTest::keyClicks(&number, QStringLiteral("8"));
        QTest::keyClick(&number, Qt::Key_Escape);
        QCOMPARE(number.text(), QStringLiteral("3"));
        QVERIFY(fixture.box().hasFocus());
    }

    void whatNobodyForesawLosesNothing()
    {
        struct Failing : PromptRecorder {
            void beep() override { throw std::bad_alloc(); }
        };
        TestAdventure adventure;
        Failing prompts;
        formUsmira window(adventure.variables, prompts);
        window.openCommandLine(
            adventure.file(QStringLiteral("a.usm"), fourParagraphs().current(8).bytes()));
        auto *box = window.findChild<RtfBox *>();
        box->moveCursor(QTextCursor::End);
        QTest::keyClicks(box, QStringLiteral(" Vraiment."));
        prompts.expect(QStringLiteral("Une action a échoué. Ce qui était tapé a été mis à l'abri."),
                       QStringLiteral("BUG"));
        window.findChild<QAction *>(QStringLiteral("menuNavNextTyped"))->trigger();
        QCOMPARE(adventure.workingFiles(), QStringList(QStringLiteral("a-0008.rtf")));
        QCOMPARE(box->text(), QStringLiteral("Fin. Vraiment."));
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
