#include "store/extras/AdventureExtras.h"

#include "store/Variables.h"

#include <algorithm>

namespace
{
void renumber(QList<int> &list, const NumberMap &numbers)
{
    for (int &n : list)
        n = numbers.at(n);
}
} // namespace

QList<int> readingStarts(const Variables &variables)
{
    if (!variables.extras.starts.isEmpty())
        return variables.extras.starts;
    for (int n = 1; n <= Variables::LastParagraph; ++n)
        if (variables.Written.at(n) == 1)
            return {n};
    return {1};
}

AdventureExtras renumbered(AdventureExtras extras, const NumberMap &numbers)
{
    renumber(extras.starts, numbers);
    for (AcceptedFinding &finding : extras.accepted) {
        finding.number = numbers.at(finding.number);
        finding.target = numbers.at(finding.target);
    }
    for (IgnoredWord &ignored : extras.ignored)
        ignored.number = numbers.at(ignored.number);
    renumber(extras.reading.read, numbers);
    for (ReadingMarks::Choice &choice : extras.reading.taken)
        choice = {numbers.at(choice.from), numbers.at(choice.to)};
    for (ReadingMarks::Bookmark &bookmark : extras.reading.bookmarks)
        renumber(bookmark.way, numbers);
    return extras;
}

AdventureExtras extrasOf(const QList<int> &numbers, AdventureExtras extras)
{
    extras.starts.removeIf([&](int n) { return !numbers.contains(n); });
    extras.accepted.removeIf(
        [&](const AcceptedFinding &finding) { return !numbers.contains(finding.number); });
    extras.ignored.removeIf(
        [&](const IgnoredWord &ignored) { return !numbers.contains(ignored.number); });
    extras.reading = {};
    return extras;
}
