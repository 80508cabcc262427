#pragma once

#include <QString>

class RichTextBox;
struct Variables;

// The default font from what was typed into the boxes for it. A name is kept also when there is no
// such font; an empty one, and a size that rounds to none within 1..1638, leave what was before. A
// half of a point goes to the even neighbour.
void setDefaultFont(Variables &variables, const QString &name, const QString &size);

// Gives the whole text the default font, in one step of the undo list, and makes it the base font.
// A text that has it already is left alone. The selection stays.
void applyDefaultFont(const Variables &variables, RichTextBox &box);
