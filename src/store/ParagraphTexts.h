#pragma once

#include "store/Variables.h"

#include <QByteArray>

// The two-level store of paragraph texts: an untouched paragraph is read from the adventure file,
// an edited one from its working file.

// The RTF bytes of paragraph n, 0..2000; empty when it has no text. Reading changes no file. Throws
// FileError when the working file is missing, or the adventure file has been overwritten since it
// was opened, or the text lies outside it; FormatError when the bytes cannot be those of a text:
// too many, or no RTF.
QByteArray GetParagraphRtf(const Variables &variables, int n);

// What the box shows of paragraph n. A text that cannot be read is shown as an empty one, and
// Damaged knows of it from then on.
QByteArray textToShow(Variables &variables, int n);

// Where the text of an Extracted paragraph lies: in its working file, unless a change of many
// paragraphs has not been put in place yet.
QString extractedTextPath(const Variables &variables, int n);

// Where the text of another written paragraph should lie in the adventure file. Offset: 0-based.
// Throws FileError when the file does not even have its length.
struct TextExtent {
    qint64 offset;
    qint64 length;
};
TextExtent textExtent(const Variables &variables, int n);
