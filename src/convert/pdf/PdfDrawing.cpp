#include "convert/pdf/PdfDrawing.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace
{
constexpr int TwipsPerInch = 1440;
}

QPageLayout pageLayout(const PageSetup &setup)
{
    const QPageSize size(setup.paper, QPageSize::Millimeter, {}, QPageSize::ExactMatch);
    return {size, QPageLayout::Portrait, QMarginsF()};
}

bool drawPages(QPagedPaintDevice &device, int dotsPerInch, const BookPages &pages, int first,
               int last, const Progress &progress)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double scale = static_cast<double>(dotsPerInch) / TwipsPerInch;
    painter.scale(scale, scale);
    for (int page = first; page <= last; ++page) {
        if (page > first && !device.newPage())
            return false;
        pages.draw(painter, page);
        progress(page - first + 1, last - first + 1);
    }
    return painter.end();
}

DrawnPdf drawPdf(const BookPages &pages, const Progress &progress)
{
    DrawnPdf drawn;
    QBuffer buffer(&drawn.bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(TwipsPerInch); // the dots of the layout
    writer.setPageLayout(pageLayout(pages.setup()));
    // Before a page is drawn, which gives back what both need.
    const auto addLinks = [&](int page) {
        if (page < pages.count())
            drawn.links.append(pages.links(page));
    };
    const auto drawing = [&](int done, int total) {
        addLinks(done);
        progress(done, total);
    };
    addLinks(0);
    drawPages(writer, TwipsPerInch, pages, 0, pages.count() - 1, drawing);
    return drawn;
}
