#include "reading/RandomReadings.h"

#include "check/BookWays.h"

#include <QRandomGenerator>
#include <algorithm>

namespace
{
// Longer than any book, in which a loop that leads out may be gone through several times.
constexpr qsizetype MostSteps = 5000;
} // namespace

RandomReader::RandomReader(const Variables &variables, const BookWays &ways, quint32 seed)
    : m_ways(ways), m_random(seed), m_seed(seed)
{
    for (int n = 1; n < ParagraphSet::count(); ++n)
        m_choices.at(n) = choicesAt(variables, n);
    findGroups();
}

void RandomReader::findGroups()
{
    m_groups = strongComponents(m_ways.web, m_ways.written);
    for (int group = 0; group < m_groups.size(); ++group)
        for (const int n : m_groups.at(group))
            m_groupOf.at(n) = group;
    for (const QList<int> &members : m_groups) {
        const int group = m_groupOf.at(members.first());
        const auto leadsOut = [&](int n) {
            const QList<int> &choices = m_choices.at(n);
            return choices.isEmpty() || std::any_of(choices.begin(), choices.end(), [&](int to) {
                       return !m_ways.written.at(to) || m_groupOf.at(to) != group;
                   });
        };
        const bool closed = std::none_of(members.begin(), members.end(), leadsOut);
        for (const int n : members)
            m_closed.at(n) = closed;
    }
}

RandomReading RandomReader::read(int start)
{
    const Outcome outcome = walk(start);
    RandomReading reading;
    reading.way = m_way;
    reading.end = outcome.end;
    if (outcome.end == ReadingEnd::Loop)
        reading.loop = m_groups.at(outcome.group);
    return reading;
}

RandomReadings RandomReader::read(const QList<int> &starts, int count)
{
    RandomReadings readings;
    readings.seed = m_seed;
    if (starts.isEmpty())
        return readings;
    readings.count = count;
    QMap<int, int> caught; // in which group, how many
    qint64 met = 0;        // written paragraphs, in all readings
    for (int i = 0; i < count; ++i) {
        const Outcome outcome = walk(any(starts));
        const int empty = outcome.end == ReadingEnd::EmptyNumber ? 1 : 0;
        met += m_met.size() - empty;
        for (const int n : m_met)
            ++readings.met.at(n);
        if (outcome.end == ReadingEnd::Loop) {
            ++caught[outcome.group];
            continue;
        }
        ++readings.ended.at(m_way.last());
        ++readings.lengths[static_cast<int>(m_way.size()) - empty];
    }
    for (auto group = caught.begin(); group != caught.end(); ++group)
        readings.loops.append({m_groups.at(group.key()), group.value()});
    std::stable_sort(readings.loops.begin(), readings.loops.end(),
                     [](const auto &a, const auto &b) { return b.readings < a.readings; });
    const auto written = std::count(m_ways.written.begin(), m_ways.written.end(), true);
    readings.meanShare = static_cast<double>(met) / static_cast<double>(written) / count;
    return readings;
}

// Of a reading that comes to no end, the loop is where it last met something again.
RandomReader::Outcome RandomReader::walk(int start)
{
    ++m_reading;
    m_way.clear();
    m_met.clear();
    int again = start;
    for (int n = start;; n = any(m_choices.at(n))) {
        m_way.append(n);
        if (!meet(n)) {
            again = n;
            if (m_closed.at(n))
                return {ReadingEnd::Loop, m_groupOf.at(n)};
        }
        if (m_choices.at(n).isEmpty())
            return {m_ways.written.at(n) ? ReadingEnd::Ending : ReadingEnd::EmptyNumber, 0};
        if (m_way.size() == MostSteps)
            return {ReadingEnd::Loop, m_groupOf.at(again)};
    }
}

// Whether the reading had not met it yet.
bool RandomReader::meet(int n)
{
    const bool first = m_lastRead.at(n) != m_reading;
    m_lastRead.at(n) = m_reading;
    if (first)
        m_met.append(n);
    return first;
}

// The standard says of its generators what they give, and nothing of the kind of what becomes of
// it. For the few choices that there are, a multiplication spreads as evenly as need be.
int RandomReader::any(const QList<int> &numbers)
{
    if (numbers.size() == 1)
        return numbers.first();
    const quint64 product = quint64{m_random()} * static_cast<quint64>(numbers.size());
    return numbers.at(static_cast<qsizetype>(product >> 32U));
}

RandomReadings randomReadings(const Variables &variables, const BookWays &ways, int count,
                              quint32 seed)
{
    return RandomReader(variables, ways, seed).read(ways.starts, count);
}

quint32 anySeed()
{
    return QRandomGenerator::global()->generate();
}
