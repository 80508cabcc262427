#include "check/WayCheck.h"

#include "check/BookWays.h"

#include <algorithm>

namespace
{
Finding finding(FindingKind kind, int number)
{
    Finding finding;
    finding.kind = kind;
    finding.number = number;
    return finding;
}

// Paragraphs from which no ending can be reached, by sets that no reference leads between.
class TrapSearch
{
public:
    explicit TrapSearch(const BookWays &ways) : m_ways(ways)
    {
        for (int n = 1; n < ParagraphSet::count(); ++n)
            m_caught.at(n) = ways.reached.at(n) && ways.written.at(n) && !ways.endable.at(n);
    }

    QList<Finding> find()
    {
        QList<Finding> traps;
        // The first group of a set leads to no other: it is a ring that nothing leaves.
        for (const QList<int> &group : strongComponents(m_ways.web, m_caught)) {
            if (m_told.at(group.first()))
                continue;
            const QList<int> members = setOf(group.first());
            if (members.size() == 1)
                continue; // its only choice is itself, which is a finding of its own
            Finding trap = finding(FindingKind::Trap, members.first());
            trap.members = members;
            trap.loop = ringThrough(m_ways.web, group.first(), m_caught);
            traps.append(trap);
        }
        return traps;
    }

private:
    QList<int> setOf(int start)
    {
        QList<int> members;
        const auto meet = [&](int n) {
            if (m_caught.at(n) && !m_told.at(n))
                members.append(n);
            m_told.at(n) = true;
        };
        meet(start);
        for (qsizetype next = 0; next < members.size();) { // they become more on the way
            const int n = members.at(next++);
            std::for_each(m_ways.web.outgoing.at(n).begin(), m_ways.web.outgoing.at(n).end(), meet);
            std::for_each(m_ways.web.incoming.at(n).begin(), m_ways.web.incoming.at(n).end(), meet);
        }
        std::sort(members.begin(), members.end());
        return members;
    }

    const BookWays &m_ways;
    ParagraphSet m_caught;
    ParagraphSet m_told;
};

// Each paragraph that is not reached hangs from the lowest of those that lead to it and that nobody
// else leads to, or from the lowest of a ring of such.
class UnreachedSearch
{
public:
    explicit UnreachedSearch(const BookWays &ways) : m_ways(ways)
    {
        for (int n = 1; n < ParagraphSet::count(); ++n)
            m_lost.at(n) = ways.written.at(n) && !ways.reached.at(n);
    }

    QList<Finding> find()
    {
        QList<QList<int>> roots = strongComponents(m_ways.web, m_lost);
        roots.removeIf([this](const QList<int> &group) { return isLedTo(group); });
        std::sort(roots.begin(), roots.end());
        for (const QList<int> &root : roots)
            hang(root);
        return m_findings;
    }

private:
    bool isLedTo(const QList<int> &group) const
    {
        return std::any_of(group.begin(), group.end(), [&](int n) {
            const QList<int> &from = m_ways.web.incoming.at(n);
            return std::any_of(from.begin(), from.end(), [&](int m) {
                return m_lost.at(m) && !std::binary_search(group.begin(), group.end(), m);
            });
        });
    }

    void hang(const QList<int> &root)
    {
        QList<int> next = root;
        for (const int n : root)
            m_lost.at(n) = false;
        while (!next.isEmpty()) {
            const int n = next.takeLast();
            tell(n, root);
            for (const int to : m_ways.web.outgoing.at(n)) {
                if (m_lost.at(to))
                    next.append(to);
                m_lost.at(to) = false;
            }
        }
    }

    void tell(int n, const QList<int> &root)
    {
        Finding found = finding(FindingKind::Unreachable, n);
        if (n != root.first() || root.size() > 1)
            found.target = root.first();
        if (root.size() > 1)
            found.members = root;
        m_findings.append(found);
    }

    const BookWays &m_ways;
    ParagraphSet m_lost;
    QList<Finding> m_findings;
};
} // namespace

QList<Finding> wayFindings(const BookWays &ways)
{
    QList<Finding> findings = TrapSearch(ways).find() + UnreachedSearch(ways).find();
    if (!ways.hasEnding)
        findings.append(finding(FindingKind::NoEnding, ways.starts.value(0, 1)));
    return findings;
}
