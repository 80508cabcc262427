#pragma once

#include "store/ParagraphArray.h"

#include <QList>

struct Variables;

// How long the texts of an adventure are, for statistics that are repeated: only those that change
// are read again. See WordCount.h for what a word and a sign is.
struct TextSizes {
    ParagraphArray<int, 2001> words; // 0 of numbers without a text
    ParagraphArray<int, 2001> signs;
    QList<int> unreadable; // counted as empty

    // Reads the stored text of a paragraph, which may have been written, changed or cleared.
    void read(const Variables &variables, int n);
};

// Reads all of them.
TextSizes textSizes(const Variables &variables);
