#include "convert/pdf/BookPrinting.h"

#include "convert/book/Book.h"
#include "convert/book/WorkPart.h"
#include "convert/pdf/BookTypesetter.h"
#include "convert/pdf/PdfDrawing.h"
#include "platform/Errors.h"

#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>

namespace
{
// Of the whole work, in hundredths.
constexpr int Read = 15;
constexpr int Set = 40;
constexpr int Printed = 100;

void prepare(QPrinter &printer, const PdfChoice &choice)
{
    printer.setDocName(choice.facts.title);
    printer.setFullPage(true);
    printer.setPageLayout(pageLayout(choice.setup));
    printer.setDuplex(choice.setup.twoSided ? QPrinter::DuplexLongSide : QPrinter::DuplexNone);
}

void print(QPrinter &printer, const BookPages &pages, const Progress &progress)
{
    const int first = std::clamp(printer.fromPage(), 1, pages.count());
    const int last =
        printer.toPage() == 0 ? pages.count() : std::clamp(printer.toPage(), first, pages.count());
    printer.setPageLayout(pageLayout(pages.setup())); // the dialog may have its own
    // What has been drawn is printed when the painter goes, unless this comes first.
    const auto drawing = [&](int done, int total) {
        try {
            progress(done, total);
        } catch (...) {
            printer.abort();
            throw;
        }
    };
    if (!drawPages(printer, printer.resolution(), pages, first - 1, last - 1, drawing))
        throw FileError(FileError::Operation::Write, printer.printerName(),
                        QStringLiteral("the printer fails"));
}
} // namespace

bool printBook(const ExportCommand &command, const ExportRequest &request, const PdfChoice &choice,
               QWidget &window)
{
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, choice);
    QPrintDialog dialog(&printer, &window);
    if (!command.hasParagraphs(request) || dialog.exec() != QDialog::Accepted)
        return false;
    const QString file = printer.outputFileName();
    ExportRequest printed = request;
    printed.place = file.isEmpty() ? printer.printerName() : file;
    if (!file.isEmpty() && printer.printRange() == QPrinter::AllPages)
        return exportToPdf(command, printed, choice).has_value(); // which replaces it whole
    if (!file.isEmpty() && !command.mayReplace(file))
        return false;
    ExportCommand::Kind kind;
    QString remark;
    kind.caption = QCoreApplication::translate("BookPrinting", "Impression...");
    kind.write = [&](const ExportRange &range, const Progress &progress) {
        const Book book = readBook(command.variables(), range, workPart(progress, 0, Read));
        BookTypesetter typesetter(book, choice.facts, choice.setup);
        typesetter.setAll(workPart(progress, Read, Set));
        remark = typesetter.remarks();
        print(printer, typesetter.pages(), workPart(progress, Set, Printed));
        return static_cast<int>(book.paragraphs.size());
    };
    kind.failure =
        QCoreApplication::translate("BookPrinting", "L'imprimante n'a pas pu tout imprimer.");
    kind.remark = [&] { return remark; };
    return command.run(printed, kind);
}
