#include "WindowFigures.h"

#include "BenchWindow.h"
#include "BigAdventure.h"
#include "Figures.h"
#include "app/Desktop.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTextEdit>
#include <QWindow>

namespace
{
constexpr int Runs = 5;
constexpr int ShownParagraphs = 200;

// Leaves the event loop once the widget has been painted.
class PaintWaiter : public QObject
{
public:
    explicit PaintWaiter(QWidget &widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        return QObject::eventFilter(watched, event);
    }
};

QWidget &page(const QWidget &window)
{
    return *window.findChild<QTextEdit *>(QStringLiteral("rtfBox"))->viewport();
}

void printShowing(BenchWindow &editor)
{
    int n = 0;
    const double time = medianMilliseconds(
        ShownParagraphs, [&] { ++n; },
        [&] {
            editor.window.LoadParg(n);
            editor.window.repaint(); // with all that it holds
        });
    printFigure(QStringLiteral("show one paragraph"), time, QStringLiteral("ms"));
}

void runChild(const QString &mode, const QString &path, const QString &folder, QByteArray &output)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {mode, path, folder});
    child.waitForFinished(-1);
    output = child.readAllStandardOutput();
}

double childFigure(const QString &mode, const QString &path, const QString &folder)
{
    QByteArray output;
    runChild(mode, path, folder, output);
    return output.trimmed().toDouble();
}

double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    constexpr double pageBytes = 4096;
    return file.readAll().split(' ').at(1).toDouble() * pageBytes / 1e6;
}

void paintEditor(const QString &path, const QString &folder)
{
    BenchWindow editor(folder);
    const PaintWaiter waiter(page(editor.window));
    editor.window.openCommandLine(path);
    QApplication::exec();
    std::printf("%f\n", residentMegabytes());
}

void paintEmptyEdit()
{
    QTextEdit edit;
    edit.resize(1080, 720);
    edit.show();
    const PaintWaiter waiter(*edit.viewport());
    QApplication::exec();
    std::printf("%f\n", residentMegabytes());
}
} // namespace

void printWindowFigures(const QString &path, const QString &folder)
{
    {
        BenchWindow editor(folder);
        editor.waitUntilExposed();
        editor.window.openCommandLine(path);
        printShowing(editor);
    }
    QByteArray ignored;
    printFigure(
        QStringLiteral("start to first paint"),
        medianMilliseconds(
            Runs, [] {}, [&] { runChild(QStringLiteral("--first-paint"), path, folder, ignored); }),
        QStringLiteral("ms"));
    const double empty = childFigure(QStringLiteral("--memory-of-an-empty-edit"), path, folder);
    const double editor = childFigure(QStringLiteral("--memory"), path, folder);
    printFigure(QStringLiteral("memory of an empty QTextEdit window"), empty, QStringLiteral("MB"));
    printFigure(QStringLiteral("memory over an empty QTextEdit window"), editor - empty,
                QStringLiteral("MB"));
}

bool runAsChild(const QString &mode, const QString &path, const QString &folder)
{
    if (mode == QStringLiteral("--memory-of-an-empty-edit"))
        paintEmptyEdit();
    else if (mode == QStringLiteral("--first-paint") || mode == QStringLiteral("--memory"))
        paintEditor(path, folder);
    else
        return false;
    return true;
}
