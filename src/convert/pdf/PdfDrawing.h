#pragma once

#include "convert/pdf/BookPages.h"
#include "platform/Progress.h"

#include <QByteArray>

// A PDF with nothing but what is seen, its fonts embedded, and where its pages have links.
struct DrawnPdf {
    QByteArray bytes;
    QList<QList<PageLink>> links;
};

// Progress counts pages.
DrawnPdf drawPdf(const BookPages &pages, const Progress &progress);
