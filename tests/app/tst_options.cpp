#include "WindowFixture.h"
#include "editor/TypingAids.h"
#include "editor/references/ReferenceUnderlines.h"
#include "store/WorkingFiles.h"
#include "support/TestTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QSpinBox>
#include <QTabWidget>
#include <QWheelEvent>

namespace
{
AdventureBuilder oneText()
{
    return AdventureBuilder({"1: Un deux trois."});
}

void inOptions(const WindowFixture &fixture, const std::function<void(QDialog &dialog)> &work)
{
    const QString name = fixture.inDialog([&] { fixture.trigger("menuComOptions"); }, work);
    QCOMPARE(name, "optionsDlog");
}

void confirm(const WindowFixture &fixture, const QString &font, const QString &size)
{
    inOptions(fixture, [&](QDialog &dialog) {
        child<QComboBox>(dialog, "comboFonts").setEditText(font);
        child<QComboBox>(dialog, "comboSizes").setEditText(size);
        click(dialog, "OKButton");
    });
}

QStringList recent(const WindowFixture &fixture)
{
    auto &menu = fixture.control<QMenu>("menuAv");
    Q_EMIT menu.aboutToShow();
    QStringList names;
    for (const QAction *item : menu.actions()) {
        if (item->text().startsWith(u'&') && item->text().at(1).isDigit())
            names.append(item->text());
    }
    return names;
}

// Where the last character of the text is on the screen, from the start of its line.
int drawnWidth(RtfBox &box)
{
    QTextCursor caret(box.document());
    const int left = box.cursorRect(caret).left();
    caret.movePosition(QTextCursor::End);
    return box.cursorRect(caret).left() - left;
}
} // namespace

class tst_options : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBoxIsItsOption()
    {
        const WindowFixture fixture(oneText());
        for (const TypingOption &option : typingOptions())
            option.set(fixture.variables, false);
        int number = 0;
        for (const TypingOption &option : typingOptions()) {
            const QString name = "Check" + QString::number(++number);
            inOptions(fixture, [&](QDialog &dialog) {
                QCOMPARE(child<QTabWidget>(dialog, "tabs").currentIndex(), 0);
                QVERIFY(!child<QCheckBox>(dialog, name).isChecked());
                child<QCheckBox>(dialog, name).setChecked(true);
                click(dialog, "CancelButton");
            });
            QVERIFY(!option.isOn(fixture.variables));
            inOptions(fixture, [&](QDialog &dialog) {
                child<QCheckBox>(dialog, name).setChecked(true);
                click(dialog, "OKButton");
            });
            QVERIFY(option.isOn(fixture.variables));
        }
        QVERIFY(fixture.variables.optBullet && fixture.variables.optNbsp == -1);
        QVERIFY(!fixture.variables.ParagraphDirty);
        QCOMPARE(fixture.control<QAction>("menuComSwap").shortcut(), QKeySequence("Ctrl+3"));
        inOptions(fixture, [](QDialog &dialog) {
            QVERIFY(child<QCheckBox>(dialog, "Check9").isChecked());
            QVERIFY(child<QCheckBox>(dialog, "Check1").text().startsWith("Deux tirets"));
        });
    }

    void defaultFont_data()
    {
        addTable<QString, QString, QString>(
            {"font", "size", "outcome"},
            {{"half to even, up", "Arial", "11.5", "Arial 12"},
             {"half to even, down", "Arial", " 12.5", "Arial 12"},
             {"unknown font", "Zapf Inconnu", "1638", "Zapf Inconnu 1638"},
             {"too large", "Arial", "1639", "Arial 14"},
             {"too small", "Arial", "0.5", "Arial 14"},
             {"no number", "Arial", "grand", "Arial 14"},
             {"negative", "Arial", "-9", "Arial 14"},
             {"huge", "Arial", "1e300", "Arial 14"},
             {"no name", " ", "9", "Times New Roman 9"}});
    }
    void defaultFont()
    {
        QFETCH(const QString, font);
        QFETCH(const QString, size);
        const WindowFixture fixture(oneText());
        fixture.variables.defaultFontSize = 14;
        RtfBox &box = fixture.box();
        box.select(3, 4);
        confirm(fixture, font, size);
        const Variables &v = fixture.variables;
        const QString outcome = v.defaultFontName + u' ' + QString::number(v.defaultFontSize);
        QTEST(outcome, "outcome");
        QCOMPARE(box.selText(), "deux");
        box.selectAll();
        QCOMPARE(box.selFontName(), v.defaultFontName);
        QCOMPARE(box.selFontSize(), v.defaultFontSize);
        QVERIFY(v.ParagraphDirty || v.AdventureModified); // the dialog may have saved it
        box.undo();                                       // in one step
        QVERIFY(!box.document()->isUndoAvailable());
    }

    void theSameFontChangesNothing()
    {
        const WindowFixture fixture(oneText());
        RtfBox &box = fixture.box();
        box.selectAll();
        confirm(fixture, box.selFontName().value(), QString::number(box.selFontSize().value()));
        QVERIFY(!fixture.variables.ParagraphDirty && !fixture.variables.AdventureModified);
        QVERIFY(!box.document()->isUndoAvailable());
    }

    void comfortIsKeptAndChangesNoText()
    {
        WindowFixture fixture(oneText());
        RtfBox &box = fixture.box();
        const QByteArray before = box.rtf();
        const int width = drawnWidth(box);
        inOptions(fixture, [](QDialog &dialog) {
            child<QSpinBox>(dialog, "spinZoom").setValue(200);
            child<QSpinBox>(dialog, "spinPage").setValue(40);
            child<QComboBox>(dialog, "comboColours").setCurrentIndex(2);
            child<QComboBox>(dialog, "comboLanguage").setCurrentIndex(1);
            child<QCheckBox>(dialog, "chkReopen").setChecked(true);
            for (const char *name : {"chkUnderlines", "chkSpelling", "chkCapitals", "chkDigits"})
                child<QCheckBox>(dialog, name).setChecked(false);
            click(dialog, "OKButton");
        });
        QVERIFY(qAbs(drawnWidth(box) - 2 * width) < 5);
        QVERIFY(fixture.editorHasFocus());
        QTest::keyClick(fixture.window.get(), Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(fixture.window->comfort().comfort().zoom, 190);
        QWheelEvent wheel({9, 9}, box.mapToGlobal(QPointF(9, 9)), {}, {0, 240}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(box.viewport(), &wheel);
        QCOMPARE(fixture.window->comfort().comfort().zoom, 210);
        QCOMPARE(box.rtf(), before);
        QVERIFY(!fixture.variables.ParagraphDirty && !box.document()->isUndoAvailable());
        QVERIFY(fixture.window->close());
        const EditorComfort kept = fixture.window->comfort().comfort();
        fixture.adventure.variables = {};
        fixture.variables.WorkingFolder = fixture.adventure.path("Dossier Usmira/");
        fixture.start();
        QCOMPARE(fixture.window->comfort().comfort(), kept);
        QCOMPARE(kept.colours, EditorComfort::Colours::Dark);
        QCOMPARE(kept.language, EditorComfort::Language::English);
        QVERIFY(!fixture.box().findChild<ReferenceUnderlines *>()->areShown());
        QVERIFY(!fixture.variables.AdventureOpen);
        fixture.window->openCommandLine({}); // the last one comes back
        QCOMPARE(fixture.box().text(), "Un deux trois.");
        QVERIFY(qAbs(drawnWidth(fixture.box()) - 2.1 * width) < 6);
        QTest::keyClick(fixture.window.get(), Qt::Key_0, Qt::ControlModifier);
        QVERIFY(qAbs(drawnWidth(fixture.box()) - width) < 2);
    }

    void theLastAdventuresAreInTheMenu()
    {
        const WindowFixture fixture;
        fixture.window->openCommandLine({}); // none to come back
        QVERIFY(!fixture.variables.AdventureOpen && recent(fixture).isEmpty());
        for (int k = 1; k <= 11; ++k) {
            const QString name = QString("A&%1.usm").arg(k);
            fixture.window->openCommandLine(fixture.adventure.file(name, oneText().bytes()));
        }
        fixture.window->openCommandLine(fixture.adventure.path("A&10.usm"));
        const QStringList names = recent(fixture);
        QCOMPARE(names.size(), 9);
        QCOMPARE(names.mid(0, 3), QStringList({"&1 A&&10.usm", "&2 A&&11.usm", "&3 A&&9.usm"}));
        const QList<QAction *> items = fixture.control<QMenu>("menuAv").actions();
        items.at(items.size() - 3)->trigger(); // before the line above Quit
        QCOMPARE(fixture.variables.AdventureFileName, "A&3.usm");
        QCOMPARE(recent(fixture).constFirst(), "&1 A&&3.usm");
    }

    void aStrangeFileDoesNoHarm()
    {
        const Table<QByteArray, QString> rows{
            {"none", "", "100 72 0 0 0 "},
            {"bounds", "zoom=401\r\npage=39\r\ncouleurs=vert\r\nrouvrir=2\r\nlangue=english\r\n",
             "100 72 0 0 0 "},
            {"numbers", "zoom=1e2\r\npage=-1\r\nzoom=99999999999\r\n", "100 72 0 0 0 "},
            {"good ones among bad",
             "\r\n=\r\nx\r\npage=50\r\n\xff\xfe=\r\nlangue=en\r\ncouleurs=claires\r\nrouvrir=1",
             "100 50 1 1 1 "},
            {"paths",
             "aventure=relatif.usm\r\naventure=/a\x01.usm\r\naventure=/b.usm\r\n"
             "aventure=/b.usm\r\naventure=/" +
                 QByteArray(5000, 'x') + "\r\naventure=/c=d.usm\r\n",
             "100 72 0 0 0 /b.usm|/c=d.usm"},
            {"too many",
             QByteArray("aventure=/") +
                 "1\r\naventure=/2\r\naventure=/3\r\naventure=/4"
                 "\r\naventure=/5\r\naventure=/6\r\naventure=/7\r\naventure=/8\r\naventure=/9"
                 "\r\naventure=/A\r\n",
             "100 72 0 0 0 /1|/2|/3|/4|/5|/6|/7|/8|/9"},
            {"endless", "zoom=200\r\n" + QByteArray(300000, 'x'), "100 72 0 0 0 "}};
        const TestAdventure folder;
        for (const auto &[name, bytes, expected] : rows) {
            const EditorComfort c = readComfort(folder.file("c", bytes));
            QCOMPARE(QString("%1 %2 %3 %4 %5 ")
                             .arg(c.zoom)
                             .arg(c.pageWidth)
                             .arg(static_cast<int>(c.colours))
                             .arg(c.reopenLast)
                             .arg(static_cast<int>(c.language)) +
                         c.adventures.join(u'|'),
                     expected);
        }
    }
};

QTEST_MAIN(tst_options)
#include "tst_options.moc"
