#pragma once

#include "convert/pdf/BookPages.h"
#include "platform/Progress.h"

#include <QByteArray>
#include <QPageLayout>

class QPagedPaintDevice;

// The paper of the pages, without margins: they are in the pages themselves.
QPageLayout pageLayout(const PageSetup &setup);

// A PDF with nothing but what is seen, its fonts embedded, and where its pages have links.
struct DrawnPdf {
    QByteArray bytes;
    QList<QList<PageLink>> links;
};

// Progress counts pages.
DrawnPdf drawPdf(const BookPages &pages, const Progress &progress);

// Draws pages first..last on a device of so many dots to the inch, which has their paper. False
// when the device fails.
bool drawPages(QPagedPaintDevice &device, int dotsPerInch, const BookPages &pages, int first,
               int last, const Progress &progress);
