#include "reading/ShortestWay.h"

#include "store/references/ReferenceWeb.h"

#include <algorithm>

ShortestWays::ShortestWays(const ReferenceWeb &web, const QList<int> &starts)
{
    m_before.fill(-1);
    for (const int start : starts)
        reach(start, {start});
    qsizetype next = 0;
    while (next < m_reached.size()) { // they become more on the way
        const int n = m_reached.at(next++);
        reach(n, web.outgoing.at(n));
    }
}

void ShortestWays::reach(int from, const QList<int> &numbers)
{
    for (const int n : numbers) {
        if (m_before.at(n) >= 0)
            continue;
        m_before.at(n) = from;
        m_reached.append(n);
    }
}

QList<int> ShortestWays::to(int n) const
{
    if (m_before.at(n) < 0)
        return {};
    QList<int> way{n};
    while (m_before.at(way.last()) != way.last())
        way.append(m_before.at(way.last()));
    std::reverse(way.begin(), way.end());
    return way;
}

QList<int> shortestWay(const ReferenceWeb &web, int from, const ParagraphSet &wanted)
{
    const ShortestWays ways(web, {from});
    const QList<int> others = ways.reached().mid(1);
    const auto nearest =
        std::find_if(others.begin(), others.end(), [&wanted](int n) { return wanted.at(n); });
    return nearest == others.end() ? QList<int>() : ways.to(*nearest).mid(1);
}
