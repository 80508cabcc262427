#include "BookFigures.h"

#include "BenchEditor.h"
#include "Figures.h"
#include "PeakMemory.h"
#include "convert/epub/EpubCommand.h"
#include "convert/page/PageCommand.h"
#include "convert/rtf/CompileCommand.h"

#include <QProcess>
#include <QStandardPaths>

namespace
{
constexpr int Runs = 5;

const QString Milliseconds = QStringLiteral("ms");

void printEpub(const ExportCommand &command, const QString &folder)
{
    const EpubChoice choice{bookFacts(command.variables())};
    const auto write = [&] {
        if (!exportToEpub(command, {1, 2000, folder + QStringLiteral("/book.epub")}, choice))
            qFatal("the export failed");
    };
    printFigure(QStringLiteral("EPUB, peak memory over before"), peakMegabytes(write),
                QStringLiteral("MB"));
    printFigure(QStringLiteral("EPUB"),
                medianMilliseconds(
                    Runs, [] {}, write),
                Milliseconds);
}

void printPage(const ExportCommand &command, const QString &folder)
{
    printFigure(
        QStringLiteral("page for reading"),
        medianMilliseconds(
            Runs, [] {},
            [&] {
                if (!exportToPage(command, {1, 2000, folder + QStringLiteral("/book.html")}, true))
                    qFatal("the export failed");
            }),
        Milliseconds);
}

// From the compiled RTF, the one form of the whole book that it reads.
void printPandocEpub(const ExportCommand &command, const QString &folder)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("pandoc"));
    if (program.isEmpty())
        return;
    const QString rtf = folder + QStringLiteral("/book.rtf");
    if (!compileToRtf(command, {1, 2000, rtf}, defaultNumberStyle(command.variables())))
        qFatal("the export failed");
    const QStringList arguments{rtf, QStringLiteral("-o"), folder + QStringLiteral("/pandoc.epub"),
                                QStringLiteral("-M"), QStringLiteral("title=Livre")};
    printFigure(QStringLiteral("EPUB by pandoc from the compiled RTF"),
                medianMilliseconds(
                    1, [] {}, [&] { QProcess::execute(program, arguments); }),
                Milliseconds);
}
} // namespace

void printBookFigures(const QString &path, const QString &folder)
{
    BenchEditor editor(folder + QStringLiteral("/book"));
    editor.commands.OpenAdventure(path);
    const ExportCommand command(editor.variables, editor.prompts, editor.view);
    printPage(command, folder);
    printEpub(command, folder);
    printPandocEpub(command, folder);
}
