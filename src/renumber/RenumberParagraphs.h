#pragma once

#include "platform/Progress.h"
#include "renumber/RenumberMap.h"

#include <QString>

class RichTextBox;

// The engine under every command that gives paragraphs other numbers.

// Gives the written paragraphs the numbers of the map, with their texts, and rewrites the
// references to them in every text that the reference index shows to have one. The written range
// goes from the lowest to the highest number with a text afterwards. The fixed mark does not move
// along: it stays with a number, and goes with the written paragraph that leaves the number.
//
// All or nothing: throws UnreadableTexts with every text that it would have to change and that
// cannot be read, or FileError, and nothing has changed.
void RenumberParagraphs(Variables &variables, const RenumberMap &map, const Progress &progress);

// Writes the new number of every reference of a text. The characters that the new number takes the
// place of are as many as the number has digits, whatever stands there: required, so that texts
// come out as authors know them. "au 026" with 26 unmoved gives "au 266". Throws LimitError where a
// phrase of digits finds itself again and again in the numbers that come in.
void rewriteReferences(RichTextBox &box, const QString &targetPhrase, const RenumberMap &map);
