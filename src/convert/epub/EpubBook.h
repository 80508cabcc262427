#pragma once

#include "convert/epub/EpubPages.h"

#include <QByteArray>
#include <QDateTime>

// The book as an EPUB 3 file; the same book of the same date gives the same bytes. It has at least
// one paragraph. A cover that is no picture is left out. Throws UsmiraError, and what
// progress throws.
QByteArray epubOf(const Book &book, const BookFacts &facts, EpubPages::Files files,
                  const QDateTime &modified, const Progress &progress);
