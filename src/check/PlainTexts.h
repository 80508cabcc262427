#pragma once

#include "store/ParagraphArray.h"

#include <QList>
#include <QString>

struct Variables;

// The plain texts of an adventure, for a check that is repeated: only those that change are read
// again.
struct PlainTexts {
    ParagraphArray<QString, 2001> texts; // of written paragraphs
    QList<int> unreadable;               // ascending; their texts are empty

    // Reads the stored text of a paragraph, which may have been written, changed or cleared.
    void read(const Variables &variables, int n);
};

// Reads all of them.
PlainTexts plainTexts(const Variables &variables);
