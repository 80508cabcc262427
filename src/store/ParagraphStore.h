#pragma once

#include "store/ParagraphTexts.h"

class Prompts;
class RichTextBox;

// Saves the box as the current paragraph when ParagraphDirty, brings the paragraph's references up
// to date and puts the selection back to the start. A text without characters empties the paragraph
// and leaves the written range as it is; a damaged text it leaves alone.
//
// Throws, and changes nothing, FileError when the working file cannot be written or removed,
// LimitError when the text is too long to be read again, NotAllowed when the author does not allow
// a damaged text to be replaced: the caller must then stay on the paragraph.
void SaveCurParg(Variables &variables, RichTextBox &box, Prompts &prompts);

// The same where nothing may be asked: NotAllowed when there is a question.
void SaveCurParg(Variables &variables, RichTextBox &box);

// The box's RTF. Throws LimitError when it is longer than what is read.
QByteArray rtfToSave(const RichTextBox &box);

// What a paragraph with this plain text is known by: Written, the written range, its references.
void noteText(Variables &variables, int n, const QString &text);

// No text is in a working file any more, and the files are removed. One that cannot be removed is
// harmless: it counts no more, and is replaced when its paragraph is saved again.
void DiscardWorkingFiles(Variables &variables);

// The same, but the files are kept in a folder "Récupération ...", whose path it gives. Files that
// cannot be moved stay in the working folder.
QString setWorkingFilesAside(Variables &variables);
