#pragma once

#include "store/ParagraphArray.h"

#include <QList>

struct Variables;

// The references of the whole adventure, read once from the index. Only written paragraphs refer to
// any; each paragraph stands in a list once, however often the text names it.
struct ReferenceWeb {
    explicit ReferenceWeb(const Variables &variables);

    ParagraphArray<QList<int>, 2001> outgoing; // in the order of the text
    ParagraphArray<QList<int>, 2001> incoming; // ascending
};
