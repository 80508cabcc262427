#pragma once

#include "convert/ExportRange.h"
#include "platform/Progress.h"
#include "store/Variables.h"

#include <QString>

class SafeFile;

// The two ways of publishing an adventure as HTML. The pages are in Windows-1252, or in UTF-8 when
// the header declares it. Codes are the author's own HTML; lines may end with LF alone, in the
// files they end with CR LF. Unwritten paragraphs are passed over.
//
// Both give the number of paragraphs written. They throw FileError, FormatError or LimitError, and
// old files stay as they were until all that replaces them is whole.

struct HtmlCodes {
    QString header;  // "<AVENTURE>" stands for the adventure's name
    QString numbers; // one file: before each paragraph, "<999>" stands for its number
    QString footer;
};

// Writes one document into file and commits it: the header, a line for each paragraph with its
// anchor, its number block and its text, and the footer.
int exportOneFile(const Variables &variables, const ExportRange &range, const HtmlCodes &codes,
                  SafeFile &file, const Progress &progress);

// Writes a page for each paragraph into folder, named prefix + "0026.htm": the header, in which
// "<999>" stands for the number, the text and the footer. codes.numbers is not used. A file of the
// open adventure is not written over: FileError (Write).
int exportManyFiles(const Variables &variables, const ExportRange &range, const HtmlCodes &codes,
                    const QString &folder, const QString &prefix, const Progress &progress);
