#include "reading/BookPaths.h"

#include "check/BookWays.h"

#include <algorithm>
#include <vector>

namespace
{
constexpr int NotYet = -1;
}

BookPaths::BookPaths(const BookWays &ways) : m_reached(ways.reached)
{
    findShortest(ways);
    findDominators(ways);
}

QList<int> BookPaths::wayTo(int n) const
{
    return up(m_before, n);
}

QList<int> BookPaths::passagesTo(int n) const
{
    QList<int> passages = up(m_dominator, n);
    if (!passages.isEmpty())
        passages.removeLast();
    return passages;
}

QList<int> BookPaths::up(const ParagraphArray<int, 2001> &parents, int n) const
{
    QList<int> way;
    if (m_reached.at(n))
        for (int at = n; at != 0; at = parents.at(at))
            way.append(at);
    std::reverse(way.begin(), way.end());
    return way;
}

void BookPaths::findShortest(const BookWays &ways)
{
    ParagraphSet met;
    QList<int> next;
    const auto meet = [&](int from, const QList<int> &numbers) {
        for (const int n : numbers) {
            if (met.at(n))
                continue;
            met.at(n) = true;
            m_before.at(n) = from;
            next.append(n);
        }
    };
    meet(0, ways.starts);
    for (qsizetype at = 0; at < next.size(); ++at) {
        const int n = next.at(at);
        meet(n, ways.web.outgoing.at(n));
    }
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
