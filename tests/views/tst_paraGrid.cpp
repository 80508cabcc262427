#include "app/WindowFixture.h"
#include "platform/Twips.h"
#include "support/TestTable.h"
#include "views/grid/GridGeometry.h"
#include "views/grid/GridSurface.h"

#include <QPlainTextEdit>
#include <QScrollBar>

namespace
{
// 1 orphan and fixed, 2 written, 3 dead end, 4 reserved, 5 empty; 2 is on the screen.
AdventureBuilder oneOfEach()
{
    return AdventureBuilder({"1!: Va au 2.", "2: Va au 3 ou au 4.", "3: Fin."})
        .list(1, "0002/")
        .list(2, "0003/0004/")
        .current(2);
}

// The grid of an open adventure.
class GridFixture : public WindowFixture
{
public:
    explicit GridFixture(const AdventureBuilder &builder) : WindowFixture(builder)
    {
        trigger("menuComGrid");
        QVERIFY(QTest::qWaitForWindowActive(&grid()));
    }
    QDialog &grid() const { return control<QDialog>("paraGrid"); }
    GridSurface &surface() const { return control<GridSurface>("surface"); }
    QScrollBar &bar() const { return control<QScrollBar>("vGridScroll"); }
    QString preview() const { return control<QPlainTextEdit>("txtPreview").toPlainText(); }

    void clickCell(int n, Qt::KeyboardModifiers keys = {}) const
    {
        const QPoint place = cellOrigin(n, bar().value()) / Twips::PerPixel + QPoint(10, 10);
        QTest::mouseClick(&surface(), Qt::LeftButton, keys, place);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers keys = {}) const
    {
        QTest::keyClick(&surface(), key, keys);
    }
    // The colour at a place in twips from the origin of a cell.
    QColor colourAt(int n, int x, int y) const
    {
        const QPoint place = cellOrigin(n, bar().value()) + QPoint(x, y);
        return surface().grab().toImage().pixelColor(place / Twips::PerPixel);
    }
};
} // namespace

class tst_paraGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clicksCountWithinCells()
    {
        const Table<double, double, int, int> rows{
            {"first", 120, 120, 0, 1},
            {"its far corner", 705.9, 450.9, 0, 1},
            {"right of it", 706, 450, 0, -1},
            {"below it", 705, 451, 0, -1},
            {"left of it", 119.9, 200, 0, -1},
            {"above it", 200, 119.9, 0, -1},
            {"next column", 810, 120, 0, 2},
            {"next row", 120, 540, 0, 13},
            {"last", 120 + 11 * 690, 120 + 9 * 420, 0, 120},
            {"thirteenth column", 120 + 12 * 690, 120, 0, -1},
            {"eleventh row", 120, 120 + 10 * 420, 0, -1},
            {"scrolled", 120, 120, 3, 37},
            {"2000", 120 + 7 * 690, 120 + 420, 165, 2000},
            {"2001", 120 + 8 * 690, 120 + 420, 165, -1}};
        for (const auto &[name, x, y, scroll, n] : rows)
            QCOMPARE(numberAt(x, y, scroll).value_or(-1), n);
        for (const auto &[shown, maximum] :
             {std::pair(1, 0), {120, 0}, {121, 1}, {126, 2}, {2000, 314}})
            QCOMPARE(gridScrollMaximum(shown), maximum);
    }

    void cellsHaveTheColoursOfTheirStatuses()
    {
        const GridFixture fixture(oneOfEach());
        const char *const colours[] = {"#FF00FF", "#FF0000", "#00FF00", "#00FFFF", "#FFFFFF"};
        for (int n = 1; n <= 5; ++n)
            QCOMPARE(fixture.colourAt(n, 210, 75), QColor(colours[n - 1]));
        QCOMPARE(fixture.colourAt(1, 210, 285), QColor(Qt::black)); // the fixed mark
        QCOMPARE(fixture.colourAt(2, 210, 285), QColor(0xFF, 0, 0));
        QCOMPARE(fixture.colourAt(2, 0, 75), QColor(0xFF, 0xFF, 0)); // the frame
        QVERIFY(fixture.colourAt(1, 0, 75) != QColor(0xFF, 0xFF, 0));
    }

    void clicksPreviewOrGoThere()
    {
        GridFixture fixture(oneOfEach());
        QVERIFY(fixture.preview().contains("Shift-cliquez pour vous rendre à ce paragraphe."));
        fixture.clickCell(3);
        QCOMPARE(fixture.preview(), "Fin.");
        QCOMPARE(fixture.grid().focusWidget()->objectName(), "btnClose");
        QCOMPARE(fixture.current(), 2);
        fixture.type("Va au 5.");
        fixture.clickCell(120, Qt::ShiftModifier);
        QCOMPARE(fixture.current(), 120);
        QCOMPARE(fixture.box().text(), "");
        QCOMPARE(fixture.colourAt(120, 0, 75), QColor(0xFF, 0xFF, 0));
        QCOMPARE(fixture.colourAt(5, 210, 75), QColor(0, 0xFF, 0xFF)); // what was typed is saved
        fixture.clickCell(2);
        QCOMPARE(fixture.preview(), "Va au 3 ou au 4.Va au 5.");
        fixture.open(AdventureBuilder({"1: Un."}).bytes());
        QVERIFY(fixture.preview().startsWith("Cliquez sur un paragraphe"));
        QCOMPARE(fixture.colourAt(5, 210, 75), QColor(Qt::white));
        fixture.clickCell(2);
        QCOMPARE(fixture.preview(), "(Vide)");
    }

    void followsWhatChangesTheAdventure()
    {
        const GridFixture fixture(oneOfEach());
        fixture.clickCell(3);
        fixture.inDialog([&] { fixture.trigger("menuComSwap"); },
                         [](QDialog &swap) {
                             typeOver(child<QLineEdit>(swap, "txtOne"), "3");
                             typeOver(child<QLineEdit>(swap, "txtTwo"), "5");
                             ::click(swap, "OKButton");
                         });
        QCOMPARE(fixture.label("lblPreview"), "Aperçu du 5");
        QCOMPARE(fixture.preview(), "Fin.");
        QCOMPARE(fixture.colourAt(5, 210, 75), QColor(0, 0xFF, 0));
        QCOMPARE(fixture.colourAt(3, 210, 75), QColor(Qt::white));
        fixture.click("btnUnmixable");
        QCOMPARE(fixture.colourAt(2, 210, 285), QColor(Qt::black));
    }

    void nothingMovesWhenTheTextCannotBeSaved()
    {
        GridFixture fixture(oneOfEach());
        fixture.type(" Du neuf.");
        fixture.variables.WorkingFolder = fixture.adventure.file("fichier", {}) + '/';
        fixture.prompts.expect("Erreur pendant l'écriture du fichier.", "BUG");
        fixture.clickCell(3, Qt::ShiftModifier);
        QCOMPARE(fixture.current(), 2);
        QCOMPARE(fixture.colourAt(2, 0, 75), QColor(0xFF, 0xFF, 0));
    }

    void keysMoveOverTheCells()
    {
        const GridFixture fixture(AdventureBuilder({"1: Va au 1000."}).list(1, "1000/").current(1));
        QVERIFY(fixture.bar().isEnabled());
        QCOMPARE(fixture.bar().maximum(), 147);
        fixture.press(Qt::Key_Left);
        fixture.press(Qt::Key_Space);
        QCOMPARE(fixture.preview(), "Va au 1000.");
        fixture.press(Qt::Key_PageDown);
        QCOMPARE(fixture.bar().value(), 10);
        fixture.press(Qt::Key_Down);
        fixture.press(Qt::Key_Right);
        fixture.press(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(fixture.current(), 134);
        fixture.press(Qt::Key_End);
        QCOMPARE(fixture.bar().value(), 83 - 9);
        fixture.press(Qt::Key_Return);
        QCOMPARE(fixture.preview(), "(Vide)");
        fixture.enter(fixture.field("txtPargNum"), "1");
        QCOMPARE(fixture.bar().value(), 0);
        fixture.bar().setValue(80);
        QTest::keyClick(&fixture.box(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&fixture.box(), Qt::Key_Delete);
        fixture.trigger("menuNavNext");
        QVERIFY(!fixture.bar().isEnabled());
        QCOMPARE(fixture.bar().value(), 0);
    }
};

QTEST_MAIN(tst_paraGrid)
#include "tst_paraGrid.moc"
