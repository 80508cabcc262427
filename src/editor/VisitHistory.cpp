#include "editor/VisitHistory.h"

void VisitHistory::clear()
{
    m_way.clear();
    m_at = 0;
}

void VisitHistory::go(int from, int to)
{
    if (from == to)
        return;
    m_way.resize(m_at);
    m_way.append({from, to});
    ++m_at;
}

void VisitHistory::follow(const NumberMap &newNumbers)
{
    for (int &n : m_way)
        n = newNumbers.at(n);
}

std::optional<int> VisitHistory::before() const
{
    return m_at > 0 ? std::optional(m_way.at(m_at - 1)) : std::nullopt;
}

std::optional<int> VisitHistory::after() const
{
    return m_at + 1 < m_way.size() ? std::optional(m_way.at(m_at + 1)) : std::nullopt;
}
