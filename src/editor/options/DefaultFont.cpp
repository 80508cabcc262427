#include "editor/options/DefaultFont.h"

#include "richtext/RichTextBox.h"
#include "richtext/TextCleaning.h"
#include "store/LenientNumbers.h"
#include "store/Variables.h"

void setDefaultFont(Variables &variables, const QString &name, const QString &size)
{
    constexpr int largest = 1638;
    const QString font = cleanedFontName(name).trimmed();
    if (!font.isEmpty())
        variables.defaultFontName = font;
    const int points = roundHalfEven(lenientMeasure(size));
    if (points >= 1 && points <= largest)
        variables.defaultFontSize = static_cast<qint16>(points);
}

void applyDefaultFont(const Variables &variables, RichTextBox &box)
{
    const int start = box.selStart();
    const int length = box.selLength();
    box.select(0, box.textLength() + 1);
    if (box.selFontName() != variables.defaultFontName ||
        box.selFontSize() != variables.defaultFontSize) {
        const RichTextBox::EditStep step(box);
        box.setSelFontName(variables.defaultFontName);
        box.setSelFontSize(variables.defaultFontSize);
    }
    box.setBaseFont(variables.defaultFontName, variables.defaultFontSize);
    box.select(start, length);
}
