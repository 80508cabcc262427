#include "GraphFigures.h"

#include "BenchEditor.h"
#include "Figures.h"
#include "store/references/ReferenceWeb.h"
#include "views/graph/BookLayout.h"
#include "views/graph/GraphCanvas.h"
#include "views/graph/GraphNodes.h"
#include "views/graph/ReferenceTree.h"
#include "views/graph/TreeLayout.h"

#include <QApplication>
#include <QEventLoop>
#include <QImage>
#include <QMouseEvent>
#include <QTimer>
#include <functional>

namespace
{
constexpr int Runs = 9;
constexpr int Frames = 200;
constexpr QSize Maximised(1920, 1000);
const QString Ms = QStringLiteral("ms");

// Of each frame of a movement: what the author does, and the painting that it asks for.
void printFrames(const QString &name, GraphCanvas &canvas, const std::function<void(int)> &move)
{
    QImage screen(Maximised, QImage::Format_RGB32);
    std::vector<double> times;
    for (int frame = 0; frame < Frames; ++frame) {
        QElapsedTimer timer;
        timer.start();
        move(frame);
        canvas.render(&screen);
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    printFigure(name + QStringLiteral(", median"), times.at(times.size() / 2), Ms);
    printFigure(name + QStringLiteral(", slowest of %1").arg(Frames), times.back(), Ms);
}

void send(GraphCanvas &canvas, QEvent::Type type, const QPointF &at, Qt::MouseButtons buttons)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, at, button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&canvas, &event);
}

void turn(GraphCanvas &canvas, int angle)
{
    const QPointF at(Maximised.width() / 2.0, Maximised.height() / 2.0);
    QWheelEvent event(at, at, {}, {0, angle}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&canvas, &event);
}

void letScaleSettle()
{
    QEventLoop loop;
    QTimer::singleShot(200, &loop, &QEventLoop::quit);
    loop.exec();
}

void printMovements(const QString &name, const GraphDrawing &drawing)
{
    GraphCanvas canvas;
    canvas.resize(Maximised);
    QImage screen(Maximised, QImage::Format_RGB32);
    printFigure(name + QStringLiteral(", first painted"),
                medianMilliseconds(
                    Runs, [] {},
                    [&] {
                        canvas.setDrawing(drawing, GraphCanvas::Place::Begin,
                                          drawing.nodes.first().number);
                        canvas.fit();
                        canvas.render(&screen);
                    }),
                Ms);
    printFrames(name + QStringLiteral(", a frame while zooming"), canvas,
                [&](int frame) { turn(canvas, frame < Frames / 2 ? 30 : -30); });
    letScaleSettle();
    printFrames(name + QStringLiteral(", a frame while it becomes sharp again"), canvas,
                [&](int /*frame*/) { QCoreApplication::processEvents(); });
    turn(canvas, 1200);
    QPointF at(Maximised.width() / 2.0, Maximised.height() / 2.0);
    send(canvas, QEvent::MouseButtonPress, at, Qt::LeftButton);
    printFrames(name + QStringLiteral(", a frame while moving"), canvas, [&](int frame) {
        at += frame < Frames / 2 ? QPointF(3, 25) : QPointF(-3, -25);
        send(canvas, QEvent::MouseMove, at, Qt::LeftButton);
    });
}
} // namespace

void printGraphFigures(const QString &path, const QString &folder)
{
    BenchEditor editor(folder + QStringLiteral("/graph"));
    editor.commands.OpenAdventure(path);
    QList<TreeNode> tree;
    const TreeRequest request;
    printFigure(
        QStringLiteral("tree of 2000 paragraphs and 6000 references, 25 deep, computed"),
        medianMilliseconds(
            Runs, [] {}, [&] { tree = referenceTree(ReferenceWeb(editor.variables), request); }),
        Ms);
    GraphDrawing drawing;
    printFigure(QStringLiteral("the same, laid out"),
                medianMilliseconds(
                    Runs, [] {},
                    [&] {
                        drawing = layOutTree(tree, request.way);
                        describeNodes(drawing, editor.variables);
                    }),
                Ms);
    printMovements(QStringLiteral("the same"), drawing);
    printFigure(QStringLiteral("the whole book, laid out"),
                medianMilliseconds(
                    Runs, [] {},
                    [&] {
                        const ReferenceWeb web(editor.variables);
                        drawing = layOutBook(editor.variables, web, 1);
                        describeNodes(drawing, editor.variables);
                    }),
                Ms);
    printMovements(QStringLiteral("the whole book"), drawing);
}
