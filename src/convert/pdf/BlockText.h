#pragma once

#include "convert/book/Book.h"
#include "convert/pdf/BookFonts.h"

#include <QTextLayout>

class Hyphenation;

// A block of a paragraph as it is laid out: with soft hyphens where words may be parted, and with
// references as the author wants to see them.
struct BlockText {
    struct Reference {
        qsizetype begin = 0;
        qsizetype length = 0;
        int number = 0; // of the paragraph that it leads to
    };
    struct Size {
        qsizetype begin = 0;
        int halfPoints = 0; // up to the next one
    };

    QString text;
    QList<QTextLayout::FormatRange> formats;
    QList<Reference> references; // those that are linked
    QList<Size> sizes;
};

// A reference is never parted from the space in front of it, and neither is it hyphenated, nor the
// word before it. hyphenation may be null.
BlockText blockText(const BookBlock &block, const PageSetup &setup, BookFonts &fonts,
                    const Hyphenation *hyphenation);
