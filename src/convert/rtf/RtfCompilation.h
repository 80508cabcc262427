#pragma once

#include "convert/ExportRange.h"
#include "platform/Progress.h"

#include <QString>

struct Variables;

// How the compiled document shows the number of each paragraph.
struct NumberStyle {
    bool operator==(const NumberStyle &) const = default;

    QString fontName; // an empty one leaves the font of plain text
    double points;    // outside 1..1638 it leaves the size of plain text
    bool bold;
    bool italic;
    bool underline;
    bool centred;
};

// Whether the numbers are bookmarks, and the references to paragraphs of the document links to
// them.
enum class RtfLinks { Without, With };

// The style where nobody has chosen one: the author's font and size, bold and centred.
NumberStyle defaultNumberStyle(const Variables &variables);

// Writes the written paragraphs of the range into one RTF document at path: of each, in ascending
// order, its number on a line of its own, its text with all its formatting, and an empty line. No
// formatting reaches from one of these into the next. Nothing written in the range gives an empty
// document.
//
// Whatever file path names is replaced, once the new one is whole; the caller has refused the
// adventure's own files. Throws UnreadableTexts with every text that cannot be read, or FileError
// (Write), and the old file stays. Gives the number of paragraphs written.
int compileRtf(const Variables &variables, const ExportRange &range, const NumberStyle &style,
               RtfLinks links, const QString &path, const Progress &progress);
