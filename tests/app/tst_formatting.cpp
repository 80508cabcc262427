#include "WindowFixture.h"

#include <QComboBox>

namespace
{
AdventureBuilder oneText()
{
    return AdventureBuilder({"1: Un deux trois."});
}

bool near(std::optional<double> value, double wanted)
{
    return value.has_value() && qAbs(*value - wanted) < 0.003;
}

// A letter for each style of the selection, a small one where only some of it has the style.
QString styles(const RtfBox &box)
{
    QString text;
    const auto add = [&text](char letter, std::optional<bool> style) {
        if (style != false)
            text += style ? QChar(letter) : QChar(letter).toLower();
    };
    add('B', box.selBold());
    add('I', box.selItalic());
    add('U', box.selUnderline());
    add('S', box.selStrikeThru());
    return text;
}
} // namespace

class tst_formatting : public QObject
{
    Q_OBJECT

    using Indent = std::optional<double> (RichTextBox::*)() const;

private Q_SLOTS:
    void styleButtonsToggle()
    {
        for (const QByteArray name : {"btnBold", "btnItalic", "btnUnderline"}) {
            const WindowFixture fixture(oneText());
            RtfBox &box = fixture.box();
            const auto &shown = fixture.control<QToolButton>(name);
            const QString style(name.at(3));
            box.select(0, 2);
            fixture.click(name);
            QCOMPARE(styles(box), style);
            QVERIFY(shown.isChecked() && box.hasFocus() && fixture.variables.ParagraphDirty);
            // Half of it has the style: first all of it gets it, then none.
            box.select(0, 7);
            QCOMPARE(styles(box), style.toLower());
            QVERIFY(!shown.isChecked());
            for (const QString &expected : {style, QString()}) {
                QTest::keyClick(&box, name.at(3), Qt::ControlModifier);
                QCOMPARE(styles(box), expected);
            }
            QCOMPARE(box.text(), "Un deux trois.");
        }
    }

    void plainTextTakesAllStylesAway()
    {
        const WindowFixture fixture(oneText());
        RtfBox &box = fixture.box();
        box.select(0, 5);
        box.setSelBold(true);
        box.setSelItalic(true);
        box.setSelUnderline(true);
        box.setSelStrikeThru(true);
        fixture.click("btnPlain");
        QCOMPARE(styles(box), "");
        box.undo(); // one step
        fixture.variables.ParagraphDirty = false;
        box.select(1, 0);
        fixture.click("btnPlain"); // for what is typed next, which changes nothing yet
        QVERIFY(!fixture.variables.ParagraphDirty && box.document()->isRedoAvailable());
        QCOMPARE(styles(box), "");
        box.select(0, 5);
        QCOMPARE(styles(box), "BIUS");
    }

    void colorAndParagraphButtons()
    {
        using Alignment = RichTextBox::Alignment;
        WindowFixture fixture(oneText());
        RtfBox &box = fixture.box();
        box.select(0, 5);
        const std::pair<QByteArray, QRgb> colors[] = {
            {"Blue", 0x0000ff}, {"Cyan", 0x00ffff},    {"Gray", 0x808080},   {"Green", 0x00ff00},
            {"Black", 0},       {"Magenta", 0xff00ff}, {"Orange", 0xff8000}, {"Purple", 0xcc00ff},
            {"Red", 0xff0000},  {"Yellow", 0xffff00}};
        for (const auto &[name, color] : colors) {
            const QByteArray button = "color" + name;
            fixture.field("txtPargNum").setFocus();
            fixture.click(button);
            QCOMPARE(box.selColor(), std::optional(0xff000000 | color));
            QVERIFY2(fixture.control<QToolButton>(button).isChecked() && box.hasFocus(), button);
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
        fixture.variables.optCtrlECentres = true;
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
        QCOMPARE(sizes.currentText(), " 12");
        box.select(0, 5);
        QVERIFY(!fixture.variables.ParagraphDirty && !box.document()->isUndoAvailable());
        fixture.enter(*sizes.lineEdit(), "10.5");
        QCOMPARE(box.selFontSize(), std::optional(10.5));
        QCOMPARE(sizes.currentText(), " 10.5");
        fixture.enter(*fixture.control<QComboBox>("comboFonts").lineEdit(), "Zapf Inconnu");
        QCOMPARE(box.selFontName(), std::optional(QString("Zapf Inconnu")));
        QVERIFY(box.hasFocus());
    }

    void mixedSelectionsAreMarked()
    {
        const WindowFixture fixture(oneText());
        RtfBox &box = fixture.box();
        const auto &fonts = fixture.control<QComboBox>("comboFonts");
        const auto &sizes = fixture.control<QComboBox>("comboSizes");
        QLineEdit &left = fixture.field("txtLeft");
        const auto shown = [&] {
            return QStringList{fonts.currentText(), sizes.currentText(), left.text(),
                               fixture.field("txtRight").text(), fixture.entries("tabList")}
                .join('/');
        };
        fixture.click("btnMore");
        box.setText("Un\r\ndeux");
        box.select(0, 2);
        box.setSelFontName("Courier");
        box.setSelFontSize(20);
        box.setSelIndent(1.5);
        box.setSelTabs({2});
        box.select(0, 8);
        QCOMPARE(shown(), "//(mix)/0.0/(mixed)");
        left.setFocus();
        QCOMPARE(left.selectedText(), "(mix)");
        box.select(0, 2);
        QCOMPARE(shown(), "Courier/ 20/1.5/0.0/2.0");
        // An added tab stop takes the place of the mark.
        box.select(0, 8);
        fixture.field("txtNewTab").setText("1");
        fixture.click("btnAddTab");
        QCOMPARE(fixture.entries("tabList"), "1.0");
        QCOMPARE(box.selTabs()->size(), 1);
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
            QTest::keyClicks(&edit, typed);
            // The text stays as typed until the field is left.
            QCOMPARE(edit.text(), typed);
            QVERIFY2(edit.hasFocus() && near((fixture.box().*applied)(), indent), typed);
        }
    }

    void tabsAreAddedOnceAndInOrderAndRemoved()
    {
        const WindowFixture fixture(oneText());
        fixture.click("btnMore");
        QLineEdit &tab = fixture.field("txtNewTab");
        for (const char *typed :
             {"3", "1", "1.0", "12,3456", "0", "-2", "abc", "0.0004", "99999"}) {
            QTest::mouseClick(&tab, Qt::LeftButton);
            QTest::keyClicks(&tab, typed);
            fixture.click("btnAddTab");
        }
        QCOMPARE(fixture.entries("tabList"), "1.0|3.0|12.346");
        QCOMPARE(fixture.prompts.beeps(), 5); // for those that are no places
        QCOMPARE(fixture.box().selTabs()->size(), 3);
        QVERIFY(near(fixture.box().selTabs()->last(), 12.346));
        fixture.box().setSelTabs({1, 2, 3});
        fixture.box().select(1, 0);
        fixture.click("btnRemoveTab"); // none is chosen
        QCOMPARE(fixture.box().selTabs()->size(), 3);
        fixture.clickRow("tabList", 1);
        fixture.click("btnRemoveTab");
        QCOMPARE(fixture.entries("tabList"), "1.0|3.0");
        fixture.click("btnClearTabs");
        QVERIFY(fixture.box().selTabs()->isEmpty() && fixture.entries("tabList").isEmpty());
    }
};

QTEST_MAIN(tst_formatting)
#include "tst_formatting.moc"
