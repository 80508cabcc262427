#include "convert/pdf/PdfCommand.h"

#include "convert/book/Book.h"
#include "convert/book/WorkPart.h"
#include "convert/pdf/BookTypesetter.h"
#include "convert/pdf/PdfDrawing.h"
#include "convert/pdf/PdfLinks.h"
#include "platform/Errors.h"
#include "store/ExportTarget.h"

namespace
{
// Of the whole work, in hundredths, by how long its parts take.
constexpr int Read = 25;
constexpr int Set = 60;
constexpr int Drawn = 90;
constexpr int Linked = 100;

class PdfExport
{
public:
    PdfExport(const Variables &variables, const PdfChoice &choice)
        : m_variables(variables), m_choice(choice)
    {
    }

    int write(const ExportRange &range, const QString &path, const Progress &progress)
    {
        const Book book = readBook(m_variables, range, workPart(progress, 0, Read));
        const QByteArray bytes = writing(path, [&] { return made(book, progress); });
        writeExport(m_variables, path, bytes);
        return static_cast<int>(book.paragraphs.size());
    }

    QString remark() const { return m_remarks.join(u' '); }

private:
    QByteArray made(const Book &book, const Progress &progress)
    {
        BookTypesetter typesetter(book, m_choice.facts, m_choice.setup);
        typesetter.setAll(workPart(progress, Read, Set));
        const BookPages pages = typesetter.pages();
        m_remarks = QStringList{emptyTargetsSentence(book), typesetter.remarks()};
        m_remarks.removeAll(QString());
        return withLinks(drawPdf(pages, workPart(progress, Set, Drawn)), pages, m_choice.facts,
                         workPart(progress, Drawn, Linked));
    }

    const Variables &m_variables;
    const PdfChoice &m_choice;
    QStringList m_remarks;
};
} // namespace

std::optional<QString> exportToPdf(const ExportCommand &command, const ExportRequest &request,
                                   const PdfChoice &choice)
{
    if (!command.hasParagraphs(request) || !command.mayReplace(request.place))
        return std::nullopt;
    PdfExport pdf(command.variables(), choice);
    ExportCommand::Kind kind;
    kind.caption = QCoreApplication::translate("PdfCommand", "Mise en pages...");
    kind.write = [&](const ExportRange &range, const Progress &progress) {
        return pdf.write(range, request.place, progress);
    };
    kind.remark = [&] { return pdf.remark(); };
    return command.run(request, kind) ? std::optional(pdf.remark()) : std::nullopt;
}
