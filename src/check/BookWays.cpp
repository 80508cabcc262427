#include "check/BookWays.h"

#include "store/ReferenceIndex.h"

#include <algorithm>

namespace
{
QList<int> startsOf(const ParagraphSet &written, const QList<int> &wanted)
{
    QList<int> starts;
    for (const int n : wanted)
        if (n >= 1 && n <= Variables::LastParagraph && written.at(n))
            starts.append(n);
    if (!starts.isEmpty())
        return starts;
    const auto lowest = std::find(written.begin(), written.end(), true);
    if (lowest != written.end())
        starts.append(static_cast<int>(lowest - written.begin()));
    return starts;
}

// Index entries of a file may name 0.
void removeZero(ReferenceWeb &web)
{
    for (const int from : web.incoming.at(0))
        web.outgoing.at(from).removeAll(0);
    for (const int to : web.outgoing.at(0))
        web.incoming.at(to).removeAll(0);
    web.incoming.at(0).clear();
    web.outgoing.at(0).clear();
}
} // namespace

BookWays::BookWays(const Variables &variables) : web(variables)
{
    removeZero(web);
    for (int n = 1; n <= Variables::LastParagraph; ++n)
        written.at(n) = variables.Written.at(n) == 1;
    starts = startsOf(written, readingStarts(variables));
    reached = connected(web.outgoing, starts);
    QList<int> ends;
    for (int n = 1; n <= Variables::LastParagraph; ++n) {
        if (!reached.at(n) || !web.outgoing.at(n).isEmpty())
            continue;
        ends.append(n);
        hasEnding = hasEnding || written.at(n);
    }
    endable = connected(web.incoming, ends);
}

QList<int> choicesAt(const Variables &variables, int n)
{
    if (variables.Written.at(n) == 0)
        return {};
    QList<int> choices = referredParagraphs(variables.refIndex.at(n));
    choices.removeAll(0); // no number of the book
    return choices;
}

ParagraphSet connected(const ParagraphArray<QList<int>, ParagraphSet::count()> &lists,
                       const QList<int> &from)
{
    ParagraphSet met;
    QList<int> next;
    const auto meet = [&](const QList<int> &numbers) {
        for (const int n : numbers) {
            if (!met.at(n))
                next.append(n);
            met.at(n) = true;
        }
    };
    meet(from);
    while (!next.isEmpty())
        meet(lists.at(next.takeLast()));
    return met;
}
