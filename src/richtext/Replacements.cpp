#include "richtext/Replacements.h"

#include "richtext/RichTextBox.h"

// From the last to the first, so that the positions of those before hold.
void replaceInBox(RichTextBox &box, const QList<Replacement> &replacements)
{
    const RichTextBox::EditStep step(box);
    for (qsizetype i = replacements.size() - 1; i >= 0; --i) {
        const Replacement &replacement = replacements.at(i);
        box.select(static_cast<int>(replacement.position), static_cast<int>(replacement.length));
        box.setSelText(replacement.text);
    }
}
