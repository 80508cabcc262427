#include "check/StrongComponents.h"

#include "store/references/ReferenceWeb.h"

#include <algorithm>
#include <vector>

namespace
{
// Tarjan's search, with a stack of its own: a ring of all paragraphs is as deep as it is long.
class ComponentSearch
{
public:
    ComponentSearch(const ReferenceWeb &web, const ParagraphSet &inside)
        : m_web(web), m_inside(inside)
    {
    }

    QList<QList<int>> find()
    {
        for (int n = 0; n < ParagraphSet::count(); ++n)
            if (m_inside.at(n) && m_order.at(n) == 0)
                searchFrom(n);
        return m_components;
    }

private:
    struct Visit {
        int number;
        qsizetype next; // of its references
    };

    void searchFrom(int start)
    {
        enter(start);
        while (!m_visits.empty()) {
            Visit &visit = m_visits.back();
            const int n = visit.number;
            if (visit.next == m_web.outgoing.at(n).size()) {
                leave(n);
                continue;
            }
            const int to = m_web.outgoing.at(n).at(visit.next++);
            if (!m_inside.at(to))
                continue;
            if (m_order.at(to) == 0)
                enter(to);
            else if (m_open.at(to))
                lower(n, m_order.at(to));
        }
    }

    void enter(int n)
    {
        m_order.at(n) = m_lowest.at(n) = ++m_count;
        m_open.at(n) = true;
        m_path.push_back(n);
        m_visits.push_back({n, 0});
    }

    void leave(int n)
    {
        m_visits.pop_back();
        if (!m_visits.empty())
            lower(m_visits.back().number, m_lowest.at(n));
        if (m_lowest.at(n) != m_order.at(n))
            return;
        const auto first = std::find(m_path.rbegin(), m_path.rend(), n).base() - 1;
        QList<int> component(first, m_path.end());
        m_path.erase(first, m_path.end());
        for (const int member : component)
            m_open.at(member) = false;
        std::sort(component.begin(), component.end());
        m_components.append(component);
    }

    void lower(int n, int order) { m_lowest.at(n) = std::min(m_lowest.at(n), order); }

    const ReferenceWeb &m_web;
    const ParagraphSet &m_inside;
    ParagraphArray<int, ParagraphSet::count()> m_order; // 0: not met yet
    ParagraphArray<int, ParagraphSet::count()> m_lowest;
    ParagraphSet m_open;
    std::vector<int> m_path;
    std::vector<Visit> m_visits;
    QList<QList<int>> m_components;
    int m_count = 0;
};
} // namespace

QList<QList<int>> strongComponents(const ReferenceWeb &web, const ParagraphSet &inside)
{
    return ComponentSearch(web, inside).find();
}

QList<int> ringThrough(const ReferenceWeb &web, int start, const ParagraphSet &inside)
{
    ParagraphArray<int, ParagraphSet::count()> before; // 0: not met yet; the start has none
    QList<int> met{start};
    for (qsizetype at = 0; at < met.size(); ++at) {
        const int n = met.at(at);
        for (const int to : web.outgoing.at(n)) {
            if (to == start) {
                QList<int> ring{n};
                while (ring.last() != start)
                    ring.append(before.at(ring.last()));
                std::reverse(ring.begin(), ring.end());
                return ring;
            }
            if (!inside.at(to) || before.at(to) != 0)
                continue;
            before.at(to) = n;
            met.append(to);
        }
    }
    return {};
}
