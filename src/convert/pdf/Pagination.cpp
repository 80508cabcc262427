#include "convert/pdf/Pagination.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace
{
// What faults cost. Many small ones never outweigh one that must not be.
constexpr double Uneven = 100;   // a page whose gaps are at their bound
constexpr double Spread = 300;   // a page whose lines are at theirs
constexpr double LongParted = 5; // a paragraph on two pages
constexpr double ShortParted = 1000;
constexpr double NotLevel = 3000;
constexpr double NotLevelByHeight = 20000; // and this times what is missing of the page
constexpr double Forbidden = 1e7;
constexpr double TooHigh = 1e10;
constexpr double Tolerance = 1e-6; // of sums

// A line with what cannot be parted from it. A paragraph without lines is a row too.
struct Row {
    int paragraph;
    int line;
    int lines; // 0 or 1
    double height;
    bool blank;
    double breakCost; // of a page that begins here
};

// Whether less than two lines of the paragraph, or one of a block, would stand on a page.
bool leavesLineAlone(const QList<FlowLine> &lines, qsizetype at)
{
    const auto isSeen = [](const FlowLine &line) { return !line.blank; };
    if (std::count_if(lines.begin(), lines.begin() + at, isSeen) < 2 ||
        std::count_if(lines.begin() + at, lines.end(), isSeen) < 2)
        return true;
    const FlowLine &before = lines.at(at - 1);
    const FlowLine &behind = lines.at(at);
    return (before.begins && !before.ends) || (behind.ends && !behind.begins);
}

double breakCost(const FlowParagraph &paragraph, qsizetype at, int keptLines)
{
    if (at == 0)
        return 0;
    if (leavesLineAlone(paragraph.lines, at))
        return Forbidden;
    return paragraph.lines.size() <= keptLines ? ShortParted : LongParted;
}

std::vector<Row> rowsOf(const QList<FlowParagraph> &paragraphs, int keptLines)
{
    std::vector<Row> rows;
    for (int p = 0; p < paragraphs.size(); ++p) {
        const FlowParagraph &one = paragraphs.at(p);
        for (int i = 0; i < std::max<qsizetype>(1, one.lines.size()); ++i) {
            const FlowLine line = one.lines.value(i);
            rows.push_back({p, i, i < one.lines.size() ? 1 : 0,
                            line.height + (i == 0 ? one.heading : 0), line.blank && i > 0,
                            breakCost(one, i, keptLines)});
        }
    }
    return rows;
}

// A page that is being filled, row by row.
class Fill
{
public:
    explicit Fill(const PageRoom &room) : m_room(room) {}

    void add(const Row &row)
    {
        if (row.line == 0 && m_rows > 0)
            ++m_gaps;
        ++m_rows;
        if (row.blank && m_height > 0) {
            m_blank += row.height;
        } else if (!row.blank) {
            m_height += m_blank + row.height;
            m_blank = 0;
        }
    }

    bool fits() const { return m_height + m_gaps * m_room.leastGap <= m_room.height + Tolerance; }

    // The gap that makes the page level, or comes next to that.
    double gap(bool level) const
    {
        if (m_gaps == 0)
            return m_room.gap;
        const double all = (m_room.height - m_height) / m_gaps;
        return std::clamp(level ? all : std::min(all, m_room.gap), m_room.leastGap, m_room.mostGap);
    }

    // By what share all rows are higher, where gaps at their bound leave the page short.
    double spread(bool level) const
    {
        const double missing = m_room.height - m_height - m_gaps * gap(level);
        const double share = missing / m_height;
        return level && missing > 0 && share <= m_room.mostSpread ? share : 0;
    }

    double cost(bool level) const
    {
        if (!fits())
            return TooHigh;
        const double gap = this->gap(level);
        const double bound =
            gap > m_room.gap ? m_room.mostGap - m_room.gap : m_room.gap - m_room.leastGap;
        const double uneven = bound > 0 ? (gap - m_room.gap) / bound : 0;
        const double spread = this->spread(level);
        const double missing = m_room.height - m_height * (1 + spread) - m_gaps * gap;
        const double spreads = m_room.mostSpread > 0 ? spread / m_room.mostSpread : 0;
        const double cost = Uneven * uneven * uneven + Spread * spreads * spreads;
        if (!level || missing <= Tolerance * m_room.height)
            return cost;
        return cost + NotLevel + NotLevelByHeight * missing / m_room.height;
    }

private:
    const PageRoom &m_room;
    double m_height = 0; // without blank rows that it begins or ends with
    double m_blank = 0;  // those
    int m_gaps = 0;
    int m_rows = 0;
};

// The best way through all places where a page may begin.
class Search
{
public:
    Search(const std::vector<Row> &rows, const PageRoom &room) : m_rows(rows), m_room(room) {}

    // The rows at which pages begin, and the number of rows.
    std::vector<std::size_t> breaks()
    {
        const std::size_t end = m_rows.size();
        m_costs.assign(end + 1, std::numeric_limits<double>::infinity());
        m_before.assign(end + 1, 0);
        m_costs.at(0) = 0;
        for (std::size_t begin = 0; begin < end; ++begin)
            tryPagesFrom(begin);
        std::vector<std::size_t> breaks{end};
        while (breaks.back() != 0)
            breaks.push_back(m_before.at(breaks.back()));
        std::reverse(breaks.begin(), breaks.end());
        return breaks;
    }

    // Whether a page that ends before this row is one of those that end level.
    bool isLevel(std::size_t end) const
    {
        return end < m_rows.size() && (!m_room.pageEach || m_rows.at(end).line > 0);
    }

private:
    void tryPagesFrom(std::size_t begin)
    {
        Fill fill(m_room);
        for (std::size_t next = begin; next < m_rows.size(); ++next) {
            if (m_room.pageEach && next > begin && m_rows.at(next).line == 0)
                return;
            fill.add(m_rows.at(next));
            if (!fill.fits() && next > begin)
                return;
            const double cost = m_costs.at(begin) + fill.cost(isLevel(next + 1)) +
                                (next + 1 < m_rows.size() ? m_rows.at(next + 1).breakCost : 0);
            if (cost < m_costs.at(next + 1)) {
                m_costs.at(next + 1) = cost;
                m_before.at(next + 1) = begin;
            }
        }
    }

    const std::vector<Row> &m_rows;
    const PageRoom &m_room;
    std::vector<double> m_costs;
    std::vector<std::size_t> m_before;
};

FlowPage placed(const std::vector<Row> &rows, std::size_t begin, std::size_t end, const Fill &fill,
                bool level)
{
    FlowPage page;
    const double spread = fill.spread(level);
    double y = 0;
    for (std::size_t at = begin; at < end; ++at) {
        const Row &row = rows.at(at);
        if (row.blank && y == 0)
            continue;
        const bool first = page.isEmpty() || page.last().paragraph != row.paragraph;
        if (first && !page.isEmpty())
            y += fill.gap(level);
        if (first)
            page.append({row.paragraph, row.line, 0, y, spread});
        page.last().lines += row.lines;
        y += row.height * (1 + spread);
    }
    return page;
}
} // namespace

QList<FlowPage> paginate(const QList<FlowParagraph> &paragraphs, const PageRoom &room)
{
    const std::vector<Row> rows = rowsOf(paragraphs, room.keptLines);
    Search search(rows, room);
    const std::vector<std::size_t> breaks = search.breaks();
    QList<FlowPage> pages;
    for (std::size_t i = 1; i < breaks.size(); ++i) {
        Fill fill(room);
        for (std::size_t row = breaks.at(i - 1); row < breaks.at(i); ++row)
            fill.add(rows.at(row));
        pages.append(
            placed(rows, breaks.at(i - 1), breaks.at(i), fill, search.isLevel(breaks.at(i))));
    }
    return pages;
}
