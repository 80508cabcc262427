#pragma once

#include "renumber/RenumberMap.h"

#include <bitset>

// What a renumbering does to the adventure, counted over the reference index without reading a
// text.

using NumberSet = std::bitset<Variables::LastParagraph + 1>;

// The numbers that a map changes.
NumberSet movedNumbers(const RenumberMap &map);

struct RenumberEffect {
    int moved;      // written paragraphs that get another number
    int references; // references that get another number
    int rewritten;  // paragraphs that these stand in
};

// When all of these numbers become others. The texts of the paragraphs without are not counted.
RenumberEffect effectOf(const Variables &variables, const NumberSet &moved,
                        const NumberSet &without = {});

// Whether the text that has this entry of the index is rewritten: it names a number that changes.
bool isRewritten(const QString &indexEntry, const NumberSet &moved);
