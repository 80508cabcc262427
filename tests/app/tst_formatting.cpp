#include "WindowFixture.h"

#include <QComboBox>
#include <QLineEdit>

namespace
{
AdventureBuilder oneText()
{
    return AdventureBuilder({QStringLiteral("1: Un deux trois.")});
}
} // namespace

class tst_formatting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void styleButtonsToggle_data();
    void styleButtonsToggle();
    void plainTextTakesAllStylesAway();
    void colorButtonsGiveTheirColor_data();
    void colorButtonsGiveTheirColor();
    void alignmentButtons();
    void bulletsLeaveTheFocus();
    void fontAndSizeComeFromTheBoxes();
    void mixedSelectionsAreMarked();
    void selectionAloneChangesNothing();
    void ctrlEObeysTheOption();
    void indentFieldsApplyWhatIsTyped_data();
    void indentFieldsApplyWhatIsTyped();
    void tabsAreAddedOnceAndInOrder();
    void tabsAreRemovedAndCleared();
    void addedTabReplacesTheMixedMarker();
    void hiddenPanelIsNotRefreshed();
    void nothingIsFormattedWithoutAnAdventure();
};

void tst_formatting::styleButtonsToggle_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<std::optional<bool> (RichTextBox::*)() const>("style");
    QTest::newRow("bold") << "btnBold" << int(Qt::Key_B) << &RichTextBox::selBold;
    QTest::newRow("italic") << "btnItalic" << int(Qt::Key_I) << &RichTextBox::selItalic;
    QTest::newRow("underline") << "btnUnderline" << int(Qt::Key_U) << &RichTextBox::selUnderline;
}

void tst_formatting::styleButtonsToggle()
{
    QFETCH(const QString, button);
    QFETCH(const int, key);
    using Style = std::optional<bool> (RichTextBox::*)() const;
    QFETCH(const Style, style);
    const WindowFixture fixture(oneText());
    RtfBox &box = fixture.box();
    const auto &shown = fixture.control<QToolButton>(button.toLatin1().constData());
    box.select(0, 2);
    fixture.click(button.toLatin1());
    QCOMPARE((box.*style)(), std::optional(true));
    QVERIFY(shown.isChecked());
    QVERIFY(box.hasFocus());
    QVERIFY(fixture.adventure.variables.ParagraphDirty);
    // Half of it has the style: first all of it gets it, then none.
    box.select(0, 7);
    QCOMPARE((box.*style)(), std::optional<bool>());
    QVERIFY(!shown.isChecked());
    QTest::keyClick(&box, Qt::Key(key), Qt::ControlModifier);
    QCOMPARE((box.*style)(), std::optional(true));
    QTest::keyClick(&box, Qt::Key(key), Qt::ControlModifier);
    QCOMPARE((box.*style)(), std::optional(false));
    QCOMPARE(box.text(), QStringLiteral("Un deux trois."));
}

void tst_formatting::plainTextTakesAllStylesAway()
{
    const WindowFixture fixture(oneText());
    RtfBox &box = fixture.box();
    box.select(0, 5);
    box.setSelBold(true);
    box.setSelItalic(true);
    box.setSelUnderline(true);
    box.setSelStrikeThru(true);
    fixture.click("btnPlain");
    QCOMPARE(box.selBold(), std::optional(false));
    QCOMPARE(box.selItalic(), std::optional(false));
    QCOMPARE(box.selUnderline(), std::optional(false));
    QCOMPARE(box.selStrikeThru(), std::optional(false));
    box.undo();
    box.select(0, 5);
    QCOMPARE(box.selBold(), std::optional(true));
    QCOMPARE(box.selStrikeThru(), std::optional(true));
}

void tst_formatting::colorButtonsGiveTheirColor_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QRgb>("color");
    QTest::newRow("black") << "colorBlack" << qRgb(0, 0, 0);
    QTest::newRow("blue") << "colorBlue" << qRgb(0, 0, 255);
    QTest::newRow("cyan") << "colorCyan" << qRgb(0, 255, 255);
    QTest::newRow("gray") << "colorGray" << qRgb(128, 128, 128);
    QTest::newRow("green") << "colorGreen" << qRgb(0, 255, 0);
    QTest::newRow("magenta") << "colorMagenta" << qRgb(255, 0, 255);
    QTest::newRow("orange") << "colorOrange" << qRgb(255, 128, 0);
    QTest::newRow("purple") << "colorPurple" << qRgb(204, 0, 255);
    QTest::newRow("red") << "colorRed" << qRgb(255, 0, 0);
    QTest::newRow("yellow") << "colorYellow" << qRgb(255, 255, 0);
}

void tst_formatting::colorButtonsGiveTheirColor()
{
    QFETCH(const QString, button);
    QFETCH(const QRgb, color);
    const WindowFixture fixture(oneText());
    RtfBox &box = fixture.box();
    box.select(0, 5);
    box.setSelColor(qRgb(1, 2, 3));
    fixture.click(button.toLatin1());
    QCOMPARE(box.selColor(), std::optional(color));
    QVERIFY(fixture.control<QToolButton>(button.toLatin1().constData()).isChecked());
    QVERIFY(box.hasFocus());
}

void tst_formatting::alignmentButtons()
{
    using Alignment = RichTextBox::Alignment;
    const WindowFixture fixture(oneText());
    const std::pair<const char *, Alignment> cases[] = {{"btnRight", Alignment::Right},
                                                        {"btnCenter", Alignment::Centre},
                                                        {"btnLeft", Alignment::Left}};
    for (const auto &[button, alignment] : cases) {
        fixture.click(button);
        QCOMPARE(fixture.box().selAlignment(), std::optional(alignment));
        for (const auto &[other, otherAlignment] : cases)
            QCOMPARE(fixture.control<QToolButton>(other).isChecked(), otherAlignment == alignment);
    }
}

void tst_formatting::bulletsLeaveTheFocus()
{
    const WindowFixture fixture(oneText());
    fixture.control<QLineEdit>("txtPargNum").setFocus();
    fixture.click("btnBullets");
    QCOMPARE(fixture.box().selBullet(), std::optional(true));
    QVERIFY(!fixture.box().hasFocus());
    fixture.click("btnNoBullets");
    QCOMPARE(fixture.box().selBullet(), std::optional(false));
}

void tst_formatting::fontAndSizeComeFromTheBoxes()
{
    const WindowFixture fixture(oneText());
    RtfBox &box = fixture.box();
    auto &fonts = fixture.control<QComboBox>("comboFonts");
    auto &sizes = fixture.control<QComboBox>("comboSizes");
    QCOMPARE(sizes.count(), 26);
    QCOMPARE(sizes.currentText(), QStringLiteral(" 12"));
    box.select(0, 5);
    sizes.setFocus();
    sizes.lineEdit()->selectAll();
    QTest::keyClicks(&sizes, QStringLiteral("10.5"));
    QTest::keyClick(&sizes, Qt::Key_Return);
    QCOMPARE(box.selFontSize(), std::optional(10.5));
    QCOMPARE(sizes.currentText(), QStringLiteral(" 10.5"));
    QVERIFY(box.hasFocus());
    fonts.setFocus();
    fonts.lineEdit()->selectAll();
    QTest::keyClicks(&fonts, QStringLiteral("Zapf Inconnu"));
    QTest::keyClick(&fonts, Qt::Key_Return);
    QCOMPARE(box.selFontName(), std::optional(QStringLiteral("Zapf Inconnu")));
    QVERIFY(box.hasFocus());
}

void tst_formatting::mixedSelectionsAreMarked()
{
    const WindowFixture fixture(AdventureBuilder({QStringLiteral("1: Un\ndeux")}));
    RtfBox &box = fixture.box();
    fixture.click("btnMore");
    box.setText(QStringLiteral("Un\r\ndeux"));
    box.select(0, 2);
    box.setSelFontName(QStringLiteral("Courier"));
    box.setSelFontSize(20);
    box.setSelIndent(1.5);
    box.setSelTabs({2});
    box.select(0, 8);
    QCOMPARE(fixture.control<QComboBox>("comboFonts").currentText(), QString());
    QCOMPARE(fixture.control<QComboBox>("comboSizes").currentText(), QString());
    QCOMPARE(fixture.control<QLineEdit>("txtLeft").text(), QStringLiteral("(mix)"));
    QCOMPARE(fixture.control<QLineEdit>("txtRight").text(), QStringLiteral("0.0"));
    QCOMPARE(fixture.entries("tabList"), QStringList{QStringLiteral("(mixed)")});
    box.select(0, 2);
    QCOMPARE(fixture.control<QComboBox>("comboFonts").currentText(), QStringLiteral("Courier"));
    QCOMPARE(fixture.control<QComboBox>("comboSizes").currentText(), QStringLiteral(" 20"));
    QCOMPARE(fixture.control<QLineEdit>("txtLeft").text(), QStringLiteral("1.5"));
    QCOMPARE(fixture.entries("tabList"), QStringList{QStringLiteral("2.0")});
}

void tst_formatting::selectionAloneChangesNothing()
{
    const WindowFixture fixture(oneText());
    fixture.click("btnMore");
    fixture.box().select(2, 7);
    fixture.box().select(0, 0);
    QVERIFY(!fixture.adventure.variables.ParagraphDirty);
    QVERIFY(!fixture.box().document()->isUndoAvailable());
}

void tst_formatting::ctrlEObeysTheOption()
{
    WindowFixture fixture(oneText());
    QTest::keyClick(&fixture.box(), Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(fixture.box().selAlignment(), std::optional(RichTextBox::Alignment::Left));
    fixture.adventure.variables.optCtrlECentres = true;
    QTest::keyClick(&fixture.box(), Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(fixture.box().selAlignment(), std::optional(RichTextBox::Alignment::Centre));
}

void tst_formatting::indentFieldsApplyWhatIsTyped_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("indent");
    QTest::addColumn<std::optional<double> (RichTextBox::*)() const>("applied");
    QTest::newRow("left") << "txtLeft"
                          << "1.25" << 1.25 << &RichTextBox::selIndent;
    QTest::newRow("first, hanging") << "txtFirst"
                                    << "-0.5" << -0.5 << &RichTextBox::selHangingIndent;
    QTest::newRow("right") << "txtRight"
                           << "2" << 2.0 << &RichTextBox::selRightIndent;
    QTest::newRow("no number is 0") << "txtLeft"
                                    << "abc" << 0.0 << &RichTextBox::selIndent;
    QTest::newRow("the mark is no number") << "txtLeft"
                                           << "(mix)" << 0.0 << &RichTextBox::selIndent;
}

void tst_formatting::indentFieldsApplyWhatIsTyped()
{
    QFETCH(const QString, field);
    QFETCH(const QString, typed);
    QFETCH(const double, indent);
    using Indent = std::optional<double> (RichTextBox::*)() const;
    QFETCH(const Indent, applied);
    const WindowFixture fixture(oneText());
    fixture.click("btnMore");
    if (field == QStringLiteral("txtFirst"))
        fixture.box().setSelIndent(1);
    auto &edit = fixture.control<QLineEdit>(field.toLatin1().constData());
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, typed);
    // The text stays as typed until the field is left.
    QCOMPARE(edit.text(), typed);
    QVERIFY(edit.hasFocus());
    const std::optional<double> value = (fixture.box().*applied)();
    QVERIFY(value.has_value());
    QVERIFY(qAbs(*value - indent) < 0.003);
}

void tst_formatting::tabsAreAddedOnceAndInOrder()
{
    const WindowFixture fixture(oneText());
    fixture.click("btnMore");
    auto &tab = fixture.control<QLineEdit>("txtNewTab");
    for (const char *typed : {"3", "1", "1.0", "12.3456"}) {
        QTest::mouseClick(&tab, Qt::LeftButton);
        QTest::keyClicks(&tab, QString::fromLatin1(typed));
        fixture.click("btnAddTab");
    }
    const QStringList listed{QStringLiteral("1.0"), QStringLiteral("3.0"),
                             QStringLiteral("12.346")};
    QCOMPARE(fixture.entries("tabList"), listed);
    const QList<double> tabs = fixture.box().selTabs().value_or(QList<double>());
    QCOMPARE(tabs.size(), 3);
    QVERIFY(qAbs(tabs.at(0) - 1) < 0.003);
    QVERIFY(qAbs(tabs.at(2) - 12.346) < 0.003);
}

void tst_formatting::tabsAreRemovedAndCleared()
{
    const WindowFixture fixture(oneText());
    fixture.box().setSelTabs({1, 2, 3});
    fixture.click("btnMore");
    fixture.click("btnRemoveTab");
    QCOMPARE(fixture.box().selTabs()->size(), 3);
    fixture.clickRow("tabList", 1);
    fixture.click("btnRemoveTab");
    QCOMPARE(fixture.box().selTabs()->size(), 2);
    QCOMPARE(fixture.entries("tabList").value(1), QStringLiteral("3.0"));
    fixture.click("btnClearTabs");
    QCOMPARE(fixture.box().selTabs()->size(), 0);
    QVERIFY(fixture.entries("tabList").isEmpty());
}

void tst_formatting::addedTabReplacesTheMixedMarker()
{
    const WindowFixture fixture(oneText());
    RtfBox &box = fixture.box();
    box.setText(QStringLiteral("Un\r\ndeux"));
    box.select(0, 1);
    box.setSelTabs({2, 4});
    fixture.click("btnMore");
    box.select(0, 8);
    fixture.control<QLineEdit>("txtNewTab").setText(QStringLiteral("1"));
    fixture.click("btnAddTab");
    QCOMPARE(fixture.entries("tabList"), QStringList{QStringLiteral("1.0")});
    QCOMPARE(box.selTabs()->size(), 1);
}

void tst_formatting::hiddenPanelIsNotRefreshed()
{
    const WindowFixture fixture(oneText());
    fixture.click("btnMore");
    QVERIFY(fixture.control<QWidget>("frameTabPanel").isVisible());
    fixture.click("btnMore");
    QVERIFY(!fixture.control<QWidget>("frameTabPanel").isVisible());
    fixture.box().setSelIndent(3);
    fixture.box().select(2, 3);
    QCOMPARE(fixture.control<QLineEdit>("txtLeft").text(), QStringLiteral("0.0"));
    fixture.click("btnMore");
    QCOMPARE(fixture.control<QLineEdit>("txtLeft").text(), QStringLiteral("3.0"));
}

void tst_formatting::nothingIsFormattedWithoutAnAdventure()
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
    fixture.click("btnMore");
    QVERIFY(fixture.control<QWidget>("frameTabPanel").isVisible());
}

QTEST_MAIN(tst_formatting)
#include "tst_formatting.moc"
