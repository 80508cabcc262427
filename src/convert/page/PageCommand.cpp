#include "convert/page/PageCommand.h"

#include "convert/page/BookPage.h"
#include "store/ExportTarget.h"
#include "store/Variables.h"

std::optional<QString> exportToPage(const ExportCommand &command, const ExportRequest &request,
                                    bool sheet)
{
    const Variables &variables = command.variables();
    Book book;
    const auto write = [&](const ExportRange &range, const Progress &progress) {
        book = readBook(variables, range, progress);
        writeExport(variables, request.place,
                    pageOf(book, bookFacts(variables), {readingStarts(variables), sheet}));
        return static_cast<int>(book.paragraphs.size());
    };
    const auto remark = [&] { return emptyTargetsSentence(book); };
    const ExportCommand::Kind kind{
        QCoreApplication::translate("PageCommand", "Page de lecture..."), write, {}, remark};
    const bool written = command.mayReplace(request.place) && command.hasParagraphs(request) &&
                         command.run(request, kind);
    return written ? std::optional(remark()) : std::nullopt;
}
