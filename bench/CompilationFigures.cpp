#include "CompilationFigures.h"

#include "BenchEditor.h"
#include "Figures.h"
#include "PeakMemory.h"
#include "convert/rtf/CompileCommand.h"

namespace
{
constexpr int Runs = 5;
} // namespace

void printCompilationFigures(const QString &path, const QString &folder)
{
    BenchEditor editor(folder + QStringLiteral("/compilation"));
    editor.commands.OpenAdventure(path);
    const ExportCommand command(editor.variables, editor.prompts, editor.view);
    const auto compile = [&](int last) {
        if (!compileToRtf(command,
                          {1, static_cast<double>(last), folder + QStringLiteral("/b.rtf")},
                          defaultNumberStyle(editor.variables)))
            qFatal("compilation failed");
    };
    for (const int last : {200, Variables::LastParagraph})
        printFigure(QStringLiteral("compile 1..%1 to RTF, peak memory over before").arg(last),
                    peakMegabytes([&] { compile(last); }), QStringLiteral("MB"));
    for (const int last : {200, Variables::LastParagraph})
        printFigure(QStringLiteral("compile 1..%1 to RTF").arg(last),
                    medianMilliseconds(
                        Runs, [] {}, [&] { compile(last); }),
                    QStringLiteral("ms"));
}
