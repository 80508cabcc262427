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
    const auto compile = [&](int last) {
        if (!compileToRtf(editor.variables, editor.prompts, editor.view, 1, last,
                          defaultNumberStyle(editor.variables), folder + QStringLiteral("/b.rtf")))
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
