#include "convert/epub/EpubCommand.h"

#include "convert/book/WorkPart.h"
#include "convert/epub/EpubBook.h"
#include "store/AdventureChanges.h"
#include "store/ExportTarget.h"

#include <QFileInfo>

namespace
{
// In hundredths, by how long the parts take.
constexpr int Read = 40;
constexpr int Packed = 100;

// When the book last changed.
QDateTime modifiedAt(const Variables &variables)
{
    const QDateTime saved = QFileInfo(variables.AdventurePath).lastModified();
    return hasUnsavedChanges(variables) || !saved.isValid() ? QDateTime::currentDateTimeUtc()
                                                            : saved;
}
} // namespace

std::optional<QString> exportToEpub(const ExportCommand &command, const ExportRequest &request,
                                    const EpubChoice &choice)
{
    const Variables &variables = command.variables();
    Book book;
    const auto write = [&](const ExportRange &range, const Progress &progress) {
        book = readBook(variables, range, workPart(progress, 0, Read));
        const QDateTime modified =
            choice.modified.isValid() ? choice.modified : modifiedAt(variables);
        writeExport(
            variables, request.place,
            epubOf(book, choice.facts, choice.files, modified, workPart(progress, Read, Packed)));
        return static_cast<int>(book.paragraphs.size());
    };
    const auto remark = [&] { return emptyTargetsSentence(book); };
    const ExportCommand::Kind kind{
        QCoreApplication::translate("EpubCommand", "Livre numérique..."), write, {}, remark};
    const bool written = command.mayReplace(request.place) && command.hasParagraphs(request) &&
                         command.run(request, kind);
    return written ? std::optional(remark()) : std::nullopt;
}
