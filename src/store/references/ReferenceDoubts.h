#pragma once

#include <QString>

// What may be doubtful about a reference in the author's text.
enum class Doubt {
    None,
    // Read, but a renumbering would write something else than the author expects.
    BlanksBefore,
    LeadingZero,
    DigitsBehind,
    // Not read as references, and thus left alone by a renumbering.
    DigitsJoined,
    TooManyBlanks,
    NoBlank,
    NoBreakSpace,
    LineBreak,
    WordBetween,
    PhraseMissing,
    NumbersAlone,
    OtherWords,
    BeyondLast,
    // Read, but probably meant as something else, and yet changed by a renumbering.
    Telephone,
    Date,
    Ordinal,
    Measure,
    OtherBook,
};

// A French sentence that says what is doubtful about a reference that is read as this number, 0 for
// one that is not read. Empty for Doubt::None.
QString doubtReason(Doubt doubt, int read, const QString &phrase);

// Of a French sentence: what is between quotation marks, or before a colon, stays on its line.
QString withNoBreakSpaces(QString sentence);
