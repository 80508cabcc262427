#pragma once

#include "store/Variables.h"

#include <QByteArray>

class RichTextBox;

// The two-level store of paragraph texts: an untouched paragraph is read from the adventure file,
// an edited one from its working file.

// "LTdI-" for "La Tour d'Ivoire.usm": the first character, each character that follows an
// apostrophe, a space or a hyphen, and a hyphen. Adventures with the same initials share names.
QString filePrefixOf(const QString &adventureFileName);

// Where the working file of paragraph n lies, existing or not.
QString workingFilePath(const Variables &variables, int n);
QString workingFilePath(const QString &workingFolder, const QString &filePrefix, int n);

// The RTF bytes of paragraph n, 0..2000; empty when it has no text. Reading never deletes: a
// working file goes only after the adventure that holds its text is in place. Throws FileError when
// the working file is missing or the adventure file has been overwritten since it was opened.
QByteArray GetParagraphRtf(const Variables &variables, int n);

// Saves the box as the current paragraph when ParagraphDirty, brings the paragraph's references up
// to date and puts the selection back to the start. A text without characters empties the paragraph
// and leaves the written range as it is. Throws FileError, and changes nothing, when the working
// file cannot be written or removed: the caller must then stay on the paragraph.
void SaveCurParg(Variables &variables, RichTextBox &box);

// No text is in a working file any more, and the files are removed. One that cannot be removed is
// harmless: it counts no more, and is replaced when its paragraph is saved again.
void DiscardWorkingFiles(Variables &variables);
