#include "WindowFixture.h"

#include <QComboBox>

namespace
{
AdventureBuilder oneText()
{
    return AdventureBuilder({QStringLiteral("1: Un deux trois.")});
}

bool near(std::optional<double> value, double wanted)
{
    return value.has_value() && qAbs(*value - wanted) < 0.003;
}
} // namespace

class tst_formatting : public QObject
{
    Q_OBJECT

    using Style = std::optional<bool> (RichTextBox::*)() const;
    using Indent = std::optional<double> (RichTextBox::*)() const;

private Q_SLOTS:
    void styleButtonsToggle()
    {
        const std::tuple<const char *, Qt::Key, Style> cases[] = {
            {"btnBold", Qt::Key_B, &RichTextBox::selBold},
            {"btnItalic", Qt::Key_I, &RichTextBox::selItalic},
            {"btnUnderline", Qt::Key_U, &RichTextBox::selUnderline}};
        for (const auto &[button, key, style] : cases) {
            const WindowFixture fixture(oneText());
            RtfBox &box = fixture.box();
            const auto &shown = fixture.control<QToolButton>(button);
            box.select(0, 2);
            fixture.click(button);
            QCOMPARE((box.*style)(), std::optional(true));
            QVERIFY2(shown.isChecked(), button);
            QVERIFY(box.hasFocus() && fixture.adventure.variables.ParagraphDirty);
            // Half of it has the style: first all of it gets it, then none.
            box.select(0, 7);
            QCOMPARE((box.*style)(), std::optional<bool>());
            QVERIFY2(!shown.isChecked(), button);
            for (const bool expected : {true, false}) {
                QTest::keyClick(&box, key, Qt::ControlModifier);
                QCOMPARE((box.*style)(), std::optional(expected));
            }
            QCOMPARE(box.text(), QStringLiteral("Un deux trois."));
        }
    }

    void plainTextTakesAllStylesAway()
    {
        WindowFixture fixture(oneText());
        RtfBox &box = fixture.box();
        box.select(0, 5);
        box.setSelBold(true);
        box.setSelItalic(true);
        box.setSelUnderline(true);
        box.setSelStrikeThru(true);
        fixture.click("btnPlain");
        const Style styles[] = {&RichTextBox::selBold, &RichTextBox::selItalic,
                                &RichTextBox::selUnderline, &RichTextBox::selStrikeThru};
        for (const Style style : styles)
            QCOMPARE((box.*style)(), std::optional(false));
        box.undo(); // one step
        fixture.adventure.variables.ParagraphDirty = false;
        box.select(1, 0);
        fixture.click("btnPlain"); // for what is typed next, which changes nothing yet
        QVERIFY(!fixture.adventure.variables.ParagraphDirty);
        QVERIFY(box.document()->isRedoAvailable());
        QCOMPARE(box.selBold(), std::optional(false));
        box.select(0, 5);
        for (const Style style : styles)
            QCOMPARE((box.*style)(), std::optional(true));
    }

    void colorAndParagraphButtons()
    {
        using Alignment = RichTextBox::Alignment;
        WindowFixture fixture(oneText());
        RtfBox &box = fixture.box();
        box.select(0, 5);
        const std::pair<const char *, QRgb> colors[] = {
            {"colorBlue", 0xff0000ff},   {"colorCyan", 0xff00ffff},   {"colorGray", 0xff808080},
            {"colorGreen", 0xff00ff00},  {"colorBlack", 0xff000000},  {"colorMagenta", 0xffff00ff},
            {"colorOrange", 0xffff8000}, {"colorPurple", 0xffcc00ff}, {"colorRed", 0xffff0000},
            {"colorYellow", 0xffffff00},
        };
        for (const auto &[button, color] : colors) {
            fixture.field("txtPargNum").setFocus();
            fixture.click(button);
            QCOMPARE(box.selColor(), std::optional(color));
            QVERIFY2(fixture.control<QToolButton>(button).isChecked(), button);
            QVERIFY2(box.hasFocus(), button);
        }
        const std::pair<const char *, Alignment> cases[] = {{"btnRight", Alignment::Right},
                                                            {"btnCenter", Alignment::Centre},
                                                            {"btnLeft", Alignment::Left}};
        for (const auto &[button, alignment] : cases) {
            fixture.click(button);
            QCOMPARE(box.selAlignment(), std::optional(alignment));
            for (const auto &[other, its] : cases)
                QCOMPARE(fixture.control<QToolButton>(other).isChecked(), its == alignment);
        }
        fixture.adventure.variables.optCtrlECentres = true;
        QTest::keyClick(&box, Qt::Key_E, Qt::ControlModifier);
        QCOMPARE(box.selAlignment(), std::optional(Alignment::Centre));
        // Only the bullets leave the focus where it is.
        fixture.field("txtPargNum").setFocus();
        fixture.click("btnBullets");
        QCOMPARE(box.selBullet(), std::optional(true));
        QVERIFY(!box.hasFocus());
        fixture.click("btnNoBullets");
        QCOMPARE(box.selBullet(), std::optional(false));
    }

    void fontAndSizeComeFromTheBoxes()
    {
        const WindowFixture fixture(oneText());
        RtfBox &box = fixture.box();
        const auto &sizes = fixture.control<QComboBox>("comboSizes");
        QCOMPARE(sizes.currentText(), QStringLiteral(" 12"));
        box.select(0, 5);
        fixture.enter(*sizes.lineEdit(), "10.5");
        QCOMPARE(box.selFontSize(), std::optional(10.5));
        QCOMPARE(sizes.currentText(), QStringLiteral(" 10.5"));
        QVERIFY(box.hasFocus());
        fixture.enter(*fixture.control<QComboBox>("comboFonts").lineEdit(), "Zapf Inconnu");
        QCOMPARE(box.selFontName(), std::optional(QStringLiteral("Zapf Inconnu")));
        QVERIFY(box.hasFocus());
    }

    void mixedSelectionsAreMarked()
    {
        const WindowFixture fixture(oneText());
        RtfBox &box = fixture.box();
        const auto shown = [&fixture] {
            return QStringList{fixture.control<QComboBox>("comboFonts").currentText(),
                               fixture.control<QComboBox>("comboSizes").currentText(),
                               fixture.field("txtLeft").text(), fixture.field("txtRight").text(),
                               fixture.entries("tabList")}
                .join(u'/');
        };
        fixture.click("btnMore");
        box.setText(QStringLiteral("Un\r\ndeux"));
        box.select(0, 2);
        box.setSelFontName(QStringLiteral("Courier"));
        box.setSelFontSize(20);
        box.setSelIndent(1.5);
        box.setSelTabs({2});
        box.select(0, 8);
        QCOMPARE(shown(), QStringLiteral("//(mix)/0.0/(mixed)"));
        fixture.field("txtLeft").setFocus();
        QCOMPARE(fixture.field("txtLeft").selectedText(), QStringLiteral("(mix)"));
        box.select(0, 2);
        QCOMPARE(shown(), QStringLiteral("Courier/ 20/1.5/0.0/2.0"));
        // An added tab stop takes the place of the mark.
        box.select(0, 8);
        fixture.field("txtNewTab").setText(QStringLiteral("1"));
        fixture.click("btnAddTab");
        QCOMPARE(fixture.entries("tabList"), QStringLiteral("1.0"));
        QCOMPARE(box.selTabs()->size(), 1);
    }

    void selectionAloneChangesNothing()
    {
        const WindowFixture fixture(oneText());
        fixture.click("btnMore");
        fixture.box().select(2, 7);
        fixture.box().select(0, 0);
        QVERIFY(!fixture.adventure.variables.ParagraphDirty);
        QVERIFY(!fixture.box().document()->isUndoAvailable());
    }

    void indentFieldsApplyWhatIsTyped()
    {
        const WindowFixture fixture(oneText());
        fixture.click("btnMore");
        const std::tuple<const char *, const char *, double, Indent> cases[] = {
            {"txtLeft", "1.25", 1.25, &RichTextBox::selIndent},
            {"txtFirst", "-0.5", -0.5, &RichTextBox::selHangingIndent},
            {"txtRight", "2", 2, &RichTextBox::selRightIndent},
            {"txtLeft", "abc", 0, &RichTextBox::selIndent},
            {"txtLeft", "1,5 cm", 1.5, &RichTextBox::selIndent},
            {"txtFirst", "-,25", -0.25, &RichTextBox::selHangingIndent},
            {"txtLeft", "3", 3, &RichTextBox::selIndent},
            {"txtLeft", "(mix)7", 3, &RichTextBox::selIndent}};
        for (const auto &[field, typed, indent, applied] : cases) {
            QLineEdit &edit = fixture.field(field);
            edit.setFocus();
            edit.selectAll();
            QTest::keyClicks(&edit, QString::fromLatin1(typed));
            // The text stays as typed until the field is left.
            QCOMPARE(edit.text(), QString::fromLatin1(typed));
            QVERIFY(edit.hasFocus());
            QVERIFY2(near((fixture.box().*applied)(), indent), typed);
        }
    }

    void tabsAreAddedOnceAndInOrderAndRemoved()
    {
        const WindowFixture fixture(oneText());
        fixture.click("btnMore");
        QLineEdit &tab = fixture.field("txtNewTab");
        for (const char *typed : {"3", "1", "1.0", "12,3456", "0", "-2", "abc", "0.0004"}) {
            QTest::mouseClick(&tab, Qt::LeftButton);
            QTest::keyClicks(&tab, QString::fromLatin1(typed));
            fixture.click("btnAddTab");
        }
        QCOMPARE(fixture.entries("tabList"), QStringLiteral("1.0|3.0|12.346"));
        QCOMPARE(fixture.prompts.beeps(), 4); // for those that are no places
        const QList<double> tabs = fixture.box().selTabs().value_or(QList<double>());
        QCOMPARE(tabs.size(), 3);
        QVERIFY(near(tabs.at(0), 1) && near(tabs.at(2), 12.346));
        fixture.box().setSelTabs({1, 2, 3});
        fixture.box().select(1, 0);
        fixture.click("btnRemoveTab"); // none is chosen
        QCOMPARE(fixture.box().selTabs()->size(), 3);
        fixture.clickRow("tabList", 1);
        fixture.click("btnRemoveTab");
        QCOMPARE(fixture.box().selTabs()->size(), 2);
        QCOMPARE(fixture.entries("tabList"), QStringLiteral("1.0|3.0"));
        fixture.click("btnClearTabs");
        QCOMPARE(fixture.box().selTabs()->size(), 0);
        QVERIFY(fixture.entries("tabList").isEmpty());
    }

    void nothingIsFormattedWithoutAnAdventure()
    {
        WindowFixture fixture;
        fixture.box().setText(QStringLiteral("Bienvenue"));
        fixture.box().selectAll();
        fixture.click("btnBold");
        QTest::keyClick(&fixture.box(), Qt::Key_B, Qt::ControlModifier);
        QCOMPARE(fixture.box().selBold(), std::optional(false));
        QTest::keyClicks(&fixture.box(), QStringLiteral("x"));
        QCOMPARE(fixture.box().text(), QStringLiteral("Bienvenue"));
        QVERIFY(!fixture.adventure.variables.ParagraphDirty);
    }
};

QTEST_MAIN(tst_formatting)
#include "tst_formatting.moc"
