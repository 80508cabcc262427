#include "reading/BookPaths.h"

#include "check/BookWays.h"

#include <algorithm>
#include <vector>

namespace
{
constexpr int NotYet = -1;
}

BookPaths::BookPaths(const BookWays &ways) : m_shortest(ways.web, ways.starts)
{
    findDominators(ways);
}

QList<int> BookPaths::passagesTo(int n) const
{
    QList<int> passages;
    if (m_dominator.at(n) != NotYet)
        for (int at = m_dominator.at(n); at != 0; at = m_dominator.at(at))
            passages.append(at);
    std::reverse(passages.begin(), passages.end());
    return passages;
}

// What is reached, each before what it leads to unless that leads back. The search has a stack of
// its own, for a book may be one long way.
QList<int> BookPaths::order(const BookWays &ways)
{
    struct Visit {
        int number;
        qsizetype next; // of its references
    };
    ParagraphSet met;
    QList<int> left;
    for (const int start : ways.starts) {
        if (met.at(start))
            continue;
        met.at(start) = true;
        std::vector<Visit> visits{{start, 0}};
        while (!visits.empty()) {
            Visit &visit = visits.back();
            const QList<int> &choices = ways.web.outgoing.at(visit.number);
            if (visit.next == choices.size()) {
                left.append(visit.number);
                m_rank.at(visit.number) = static_cast<int>(left.size());
                visits.pop_back();
                continue;
            }
            const int to = choices.at(visit.next++);
            if (!met.at(to))
                visits.push_back({to, 0});
            met.at(to) = true;
        }
    }
    m_rank.at(0) = static_cast<int>(left.size()) + 1;
    std::reverse(left.begin(), left.end());
    return left;
}

// What dominates a paragraph is where all that lead to it meet, going up; repeated until nothing
// changes, which is mostly at the second time.
void BookPaths::findDominators(const BookWays &ways)
{
    const QList<int> numbers = order(ways);
    m_dominator.fill(NotYet);
    m_dominator.at(0) = 0;
    for (const int start : ways.starts)
        m_dominator.at(start) = 0;
    bool changed = true;
    while (changed) {
        changed = false;
        for (const int n : numbers) {
            if (m_dominator.at(n) == 0)
                continue; // nothing is above the beginning
            int dominator = NotYet;
            for (const int from : ways.web.incoming.at(n))
                if (m_dominator.at(from) != NotYet)
                    dominator = dominator == NotYet ? from : meeting(from, dominator);
            changed = changed || dominator != m_dominator.at(n);
            m_dominator.at(n) = dominator;
        }
    }
}

int BookPaths::meeting(int a, int b) const
{
    while (a != b) {
        while (m_rank.at(a) < m_rank.at(b))
            a = m_dominator.at(a);
        while (m_rank.at(b) < m_rank.at(a))
            b = m_dominator.at(b);
    }
    return a;
}
