#include "app/WindowFixture.h"
#include "views/graph/GraphCanvas.h"
#include "views/graph/GraphFile.h"
#include "views/graph/GraphNodes.h"
#include "views/graph/paraGraphs.h"

#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QPlainTextEdit>
#include <QSpinBox>

namespace
{
// The window of the graphs beside the editor, driven as an author does.
struct Graphs {
    explicit Graphs(const QStringList &lines, int current = 1)
        : editor(AdventureBuilder(lines).current(current))
    {
        open();
    }
    void open()
    {
        editor.trigger("menuComGraphs");
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (widget->objectName() == "paraGraphs")
                window = qobject_cast<paraGraphs *>(widget);
        QVERIFY(window != nullptr && QTest::qWaitForWindowActive(window));
    }
    GraphCanvas &canvas() const { return child<GraphCanvas>(*window, "graph"); }
    // The numbers of all nodes in the order of the tree; "=" is shown elsewhere, "!" a stop, "~"
    // cut. What is due is computed when the event loop runs.
    QString nodes() const
    {
        QCoreApplication::processEvents();
        QStringList numbers;
        for (const GraphNode &node : canvas().drawing().nodes)
            numbers.append(QString::number(node.number) +
                           QString(" =!~").mid(int(node.kind), 1).trimmed());
        return numbers.join(u' ');
    }
    void key(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(&canvas(), Qt::Key(key), modifiers);
        QCoreApplication::processEvents();
    }
    void enter(const char *box, const char *text) const
    {
        editor.enter(child<QLineEdit>(*window, box), text);
        QCoreApplication::processEvents();
    }
    QString stops() const
    {
        QStringList numbers;
        const auto &list = child<QListWidget>(*window, "stopList");
        for (int row = 0; row < list.count(); ++row)
            numbers.append(list.item(row)->text());
        return numbers.join(u' ');
    }

    WindowFixture editor;
    paraGraphs *window = nullptr;
};

const QStringList OpenedBook{"1: Va au 2 ou au 3", "2: Va au 4", "3!: Va au 2", "4: Va au 5",
                             "6: Va au 4"};
} // namespace

class tst_paraGraphs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatIsAskedFor()
    {
        Graphs graphs(OpenedBook, 2);
        QCOMPARE(graphs.nodes(), "2 4 5");
        graphs.enter("txtStart", "1");
        QCOMPARE(graphs.nodes(), "1 2 3 4 2= 5");
        child<QSpinBox>(*graphs.window, "spinDepth").setValue(1);
        QCOMPARE(graphs.nodes(), "1 2~ 3~");
        graphs.enter("txtStart", "2001");
        QCOMPARE(graphs.nodes(), "1 2~ 3~");
        QCOMPARE(graphs.editor.prompts.beeps(), 1);
        child<QComboBox>(*graphs.window, "comboView").setCurrentIndex(1);
        graphs.enter("txtStart", "4");
        QCOMPARE(graphs.nodes(), "4 2~ 6");
        graphs.window->close();
        graphs.open();
        QCOMPARE(graphs.nodes(), "2 1 3~");
        const GraphNode &fixed = graphs.canvas().drawing().nodes.at(2);
        QVERIFY(fixed.fixed && !fixed.current && graphs.canvas().drawing().nodes.at(0).current);
    }

    void theBookBeginsForItself()
    {
        Graphs graphs(OpenedBook, 3);
        auto &views = child<QComboBox>(*graphs.window, "comboView");
        views.setCurrentIndex(2);
        QCOMPARE(graphs.nodes(), "1 2 3 4 5 6");
        graphs.enter("txtStart", "2");
        QCOMPARE(graphs.nodes(), "2 4 5 1 6 3");
        views.setCurrentIndex(0);
        QCOMPARE(graphs.nodes(), "3 2 4 5");
    }

    void followsTheAdventure()
    {
        Graphs graphs(OpenedBook);
        child<QSpinBox>(*graphs.window, "spinDepth").setValue(2);
        graphs.enter("txtStop", "2");
        graphs.enter("txtStop", "6");
        QCOMPARE(graphs.nodes(), "1 2! 3 2=");
        graphs.editor.type(" ou au 9");
        graphs.editor.trigger("menuNavNext");
        QCOMPARE(graphs.nodes(), "1 2! 3 9 2=");
        QVERIFY(!graphs.canvas().drawing().nodes.at(0).current);
        QVERIFY(graphs.canvas().drawing().nodes.at(1).current);
        graphs.window->close();
        graphs.editor.inDialog([&] { graphs.editor.trigger("menuComSwap"); },
                               [](QDialog &dialog) {
                                   typeOver(child<QLineEdit>(dialog, "txtOne"), "2");
                                   typeOver(child<QLineEdit>(dialog, "txtTwo"), "7");
                                   click(dialog, "OKButton");
                               });
        graphs.window->show();
        QCOMPARE(graphs.nodes(), "1 7! 3 9 7=");
        QCOMPARE(graphs.stops(), "6 7");
        graphs.editor.variables.AdventureModified = false;
        graphs.editor.window->openCommandLine(
            graphs.editor.adventure.file("Autre.usm", AdventureBuilder({"1: Va au 8"}).bytes()));
        QCOMPARE(graphs.nodes(), "1 8");
        QCOMPARE(graphs.stops(), "");
    }

    void keysMoveAndChoose()
    {
        Graphs graphs(OpenedBook);
        QCOMPARE(graphs.nodes(), "1 2 3 4 2= 5");
        const auto &preview = child<QPlainTextEdit>(*graphs.window, "txtPreview");
        for (const int key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Space})
            graphs.key(key);
        QCOMPARE(preview.toPlainText(), "Va au 2");
        graphs.key(Qt::Key_A);
        QCOMPARE(graphs.nodes(), "1 2 3! 4 5");
        QCOMPARE(graphs.stops(), "3");
        graphs.key(Qt::Key_A);
        graphs.key(Qt::Key_Return);
        QCOMPARE(graphs.nodes(), "3 2 4 5");
        graphs.key(Qt::Key_Right);
        graphs.key(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(graphs.editor.current(), 2);
        graphs.key(Qt::Key_Escape);
        QVERIFY(!graphs.window->isVisible());
    }

    void tabGoesRoundInTheOrderOfTheWindow()
    {
        const Graphs graphs(OpenedBook);
        QStringList names;
        const QWidget *first = &child<QWidget>(*graphs.window, "comboView");
        const QWidget *widget = first;
        do {
            if ((widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy() &&
                !widget->objectName().startsWith("qt_"))
                names.append(widget->objectName());
            widget = widget->nextInFocusChain();
        } while (widget != first);
        QCOMPARE(names.join(' '),
                 "comboView txtStart spinDepth txtFind graph txtStop btnAddStop stopList "
                 "btnRemoveStop btnClearStops txtPreview btnFit btnZoomOut btnZoomIn btnSvg btnPng "
                 "btnClose");
    }

    void clicksChooseAndDragsMove()
    {
        Graphs graphs(OpenedBook);
        QCOMPARE(graphs.nodes(), "1 2 3 4 2= 5");
        const auto place = [&] {
            const GraphDrawing &drawing = graphs.canvas().drawing();
            return graphs.canvas().view().toView(drawing.nodes.at(nodeOf(drawing, 3)).centre);
        };
        const QPoint three = place().toPoint();
        QTest::mouseClick(&graphs.canvas(), Qt::LeftButton, Qt::ShiftModifier, three);
        QCOMPARE(graphs.editor.current(), 3);
        const QPoint away(40, 25);
        QTest::mousePress(&graphs.canvas(), Qt::LeftButton, {}, three);
        QTest::mouseMove(&graphs.canvas(), three + away);
        QTest::mouseRelease(&graphs.canvas(), Qt::LeftButton, {}, three + away);
        QCOMPARE(place().toPoint(), three + away);
        QTest::mouseDClick(&graphs.canvas(), Qt::LeftButton, {}, three + away);
        QCOMPARE(graphs.nodes(), "3 2 4 5");
    }

    void picturesAreSaved()
    {
        Graphs graphs(OpenedBook);
        QCOMPARE(graphs.nodes(), "1 2 3 4 2= 5");
        const auto save = [&](const char *button, const QString &name) {
            graphs.editor.prompts.expectFileDialog("Enregistrer le Graphe",
                                                   graphs.editor.adventure.path(name), "Le Loup 1");
            click(*graphs.window, button);
        };
        QCOMPARE(child<QWidget>(*graphs.window, "btnSvg").isVisible(), DrawsSvg);
        if (DrawsSvg) {
            save("btnSvg", "a.svg");
            const QByteArray svg = graphs.editor.adventure.content("a.svg");
            for (const QByteArray number : {">1<", ">3<", ">5<"})
                QVERIFY(svg.contains(number));
        }
        save("btnPng", "a.png");
        const QImage image(graphs.editor.adventure.path("a.png"));
        QCOMPARE(image.size(), graphs.canvas().drawing().bounds.size().toSize());
        const QByteArray before = graphs.editor.adventure.content("Le Loup.usm");
        graphs.editor.prompts.expect("Erreur pendant l'écriture du fichier.", "BUG");
        save("btnPng", "Le Loup.usm");
        QCOMPARE(graphs.editor.adventure.content("Le Loup.usm"), before);
    }
};

QTEST_MAIN(tst_paraGraphs)
#include "tst_paraGraphs.moc"
