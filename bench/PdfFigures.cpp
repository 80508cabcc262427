#include "PdfFigures.h"

#include "BenchEditor.h"
#include "Figures.h"
#include "PeakMemory.h"
#include "convert/book/Book.h"
#include "convert/pdf/PdfCommand.h"

namespace
{
constexpr int Runs = 5;
} // namespace

void printPdfFigures(const QString &path, const QString &folder)
{
    BenchEditor editor(folder + QStringLiteral("/pdf"));
    editor.commands.OpenAdventure(path);
    const ExportCommand command(editor.variables, editor.prompts, editor.view);
    const PdfChoice choice{bookFacts(editor.variables), defaultPageSetup(editor.variables)};
    const auto print = [&] {
        if (!exportToPdf(command,
                         {1, Variables::LastParagraph, folder + QStringLiteral("/livre.pdf")},
                         choice))
            qFatal("the PDF failed");
    };
    printFigure(QStringLiteral("2000 paragraphs to PDF, peak memory over before"),
                peakMegabytes(print), QStringLiteral("MB"));
    printFigure(QStringLiteral("2000 paragraphs to PDF"),
                medianMilliseconds(
                    Runs, [] {}, print),
                QStringLiteral("ms"));
}
