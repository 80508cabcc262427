#include "check/PlainTexts.h"

#include "store/DamagedTexts.h"

#include <algorithm>

void PlainTexts::read(const Variables &variables, int n)
{
    unreadable.removeAll(n);
    texts.at(n).clear();
    if (variables.Written.at(n) == 0)
        return;
    texts.at(n) = readablePlainText(variables, n, unreadable).value_or(QString());
    std::sort(unreadable.begin(), unreadable.end());
}

PlainTexts plainTexts(const Variables &variables)
{
    PlainTexts book;
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n)
        book.read(variables, n);
    return book;
}
