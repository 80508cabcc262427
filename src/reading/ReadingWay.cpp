#include "reading/ReadingWay.h"

#include <algorithm>

namespace
{
bool beginsWith(const QList<int> &way, const QList<int> &steps)
{
    return way.size() >= steps.size() && std::equal(steps.begin(), steps.end(), way.begin());
}
} // namespace

std::optional<int> ReadingWay::current() const
{
    return m_steps.isEmpty() ? std::nullopt : std::optional(m_steps.at(m_at));
}

void ReadingWay::clear()
{
    *this = {};
}

void ReadingWay::come(const QList<int> &steps)
{
    if (!beginsWith(m_steps, steps)) {
        if (!beginsWith(steps, m_steps))
            keepSteps();
        const auto same = std::find_if(m_kept.rbegin(), m_kept.rend(), [&](const QList<int> &way) {
            return beginsWith(way, steps);
        });
        m_steps = same == m_kept.rend() ? steps : m_kept.takeAt(m_kept.rend() - same - 1);
    }
    m_at = steps.size() - 1;
}

void ReadingWay::goOn(const QList<int> &steps)
{
    come(m_steps.first(m_steps.isEmpty() ? 0 : m_at + 1) + steps);
}

// A start alone is found again without being kept.
void ReadingWay::keepSteps()
{
    if (m_steps.size() < 2)
        return;
    m_kept.append(m_steps);
    if (m_kept.size() > MostKept)
        m_kept.removeFirst();
}

bool ReadingWay::canRestore() const
{
    return m_at + 1 < m_steps.size() || !m_kept.isEmpty();
}

void ReadingWay::restore()
{
    if (m_at + 1 < m_steps.size()) {
        ++m_at;
        return;
    }
    if (m_kept.isEmpty())
        return;
    m_kept.prepend(m_steps);
    m_steps = m_kept.takeLast();
    m_at = m_steps.size() - 1;
}

void ReadingWay::follow(const NumberMap &newNumbers)
{
    const auto renumber = [&](QList<int> &way) {
        for (int &n : way)
            n = newNumbers.at(n);
    };
    renumber(m_steps);
    for (QList<int> &way : m_kept)
        renumber(way);
}
