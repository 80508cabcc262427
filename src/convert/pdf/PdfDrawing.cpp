#include "convert/pdf/PdfDrawing.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace
{
constexpr int TwipsPerInch = 1440; // one of the writer's dots is a twip

void setPaper(QPdfWriter &writer, const PageSetup &setup)
{
    const QPageSize size(setup.paper, QPageSize::Millimeter, {}, QPageSize::ExactMatch);
    writer.setResolution(TwipsPerInch);
    writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, QMarginsF()));
}
} // namespace

DrawnPdf drawPdf(const BookPages &pages, const Progress &progress)
{
    DrawnPdf drawn;
    QBuffer buffer(&drawn.bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    setPaper(writer, pages.setup());
    QPainter painter(&writer);
    for (int page = 0; page < pages.count(); ++page) {
        if (page > 0)
            writer.newPage();
        drawn.links.append(pages.links(page));
        pages.draw(painter, page);
        progress(page + 1, pages.count());
    }
    painter.end();
    return drawn;
}
