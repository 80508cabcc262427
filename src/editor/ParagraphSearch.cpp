#include "editor/ParagraphSearch.h"

#include "store/ReferenceIndex.h"

namespace
{
std::optional<int> search(const Variables &variables, int from, int step, bool typed)
{
    for (int n = from + step; n >= 0 && n <= Variables::LastParagraph; n += step) {
        if ((variables.Written.at(n) == 1) == typed)
            return n;
    }
    return std::nullopt;
}
} // namespace

std::optional<int> nextTyped(const Variables &variables, int from)
{
    return search(variables, from, +1, true);
}

std::optional<int> previousTyped(const Variables &variables, int from)
{
    return search(variables, from, -1, true);
}

std::optional<int> nextEmpty(const Variables &variables, int from)
{
    return search(variables, from, +1, false);
}

std::optional<int> previousEmpty(const Variables &variables, int from)
{
    return search(variables, from, -1, false);
}

std::optional<int> firstFree(const Variables &variables, int from)
{
    ParagraphArray<bool, Variables::LastParagraph + 1> used;
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n) {
        if (variables.Written.at(n) == 0)
            continue;
        used.at(n) = true;
        for (const int referred : referredParagraphs(variables.refIndex.at(n)))
            used.at(referred) = true;
    }
    int n = from;
    for (int step = 0; step < Variables::LastParagraph; ++step) {
        n = n >= Variables::LastParagraph ? 1 : n + 1;
        if (!used.at(n))
            return n;
    }
    return std::nullopt;
}

QList<int> writtenParagraphs(const Variables &variables)
{
    QList<int> numbers;
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n) {
        if (variables.Written.at(n) == 1)
            numbers.append(n);
    }
    return numbers;
}

int countWritten(const Variables &variables)
{
    const QList<int> numbers = writtenParagraphs(variables);
    return static_cast<int>(numbers.size() - numbers.count(0));
}
