#pragma once

#include <QString>
#include <QStringList>

class RichTextBox;

// The readable form in which the bundled texts are kept. Every line is one line of the text.
//   **gras** *italique* __souligné__ ~~barré~~ {rouge|texte}    inline, may stand in one another
//   "^ " centred, "> " right-aligned, "- " bullet               at the start of a line
//   "# " large title, "## " smaller title                       behind those
// A backslash takes the next character as it stands.
//
// Appends the line to box as a paragraph of its own. Throws FormatError on an unknown colour and on
// a mark that is left open.
void appendMarkup(RichTextBox &box, const QString &line);

// Replaces the content of box by these lines. Empty ones at either end are dropped.
void setMarkup(RichTextBox &box, QStringList lines);
