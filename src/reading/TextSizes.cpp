#include "reading/TextSizes.h"

#include "richtext/WordCount.h"
#include "store/DamagedTexts.h"

#include <algorithm>

void TextSizes::read(const Variables &variables, int n)
{
    unreadable.removeAll(n);
    words.at(n) = 0;
    signs.at(n) = 0;
    if (variables.Written.at(n) == 0)
        return;
    const QString text = readablePlainText(variables, n, unreadable).value_or(QString());
    words.at(n) = countWords(text);
    signs.at(n) = countSigns(text);
    std::sort(unreadable.begin(), unreadable.end());
}

TextSizes textSizes(const Variables &variables)
{
    TextSizes sizes;
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n)
        sizes.read(variables, n);
    return sizes;
}
