#include "reading/ShortestWay.h"

#include "store/references/ReferenceWeb.h"

#include <algorithm>

namespace
{
// Back from the end of the way that was found.
QList<int> wayTo(int end, int from, const ParagraphArray<int, 2001> &before)
{
    QList<int> way;
    for (int n = end; n != from; n = before.at(n))
        way.append(n);
    std::reverse(way.begin(), way.end());
    return way;
}
} // namespace

QList<int> shortestWay(const ReferenceWeb &web, int from, const ParagraphSet &wanted)
{
    ParagraphArray<int, 2001> before;
    before.fill(-1);
    before.at(from) = from;
    QList<int> reached{from};
    for (qsizetype i = 0; i < reached.size(); ++i) {
        const int n = reached.at(i);
        for (const int to : web.outgoing.at(n)) {
            if (before.at(to) >= 0)
                continue;
            before.at(to) = n;
            if (wanted.at(to))
                return wayTo(to, from, before);
            reached.append(to);
        }
    }
    return {};
}
