#pragma once

#include "convert/pdf/PdfDrawing.h"

// The drawn pages with what leads through them: links at the references, an outline by hundreds,
// title, author and language. The same book gives the same bytes at any time. Throws FormatError
// when drawn is no PDF of these pages.
QByteArray withLinks(const DrawnPdf &drawn, const BookPages &pages, const BookFacts &facts,
                     const Progress &progress);
