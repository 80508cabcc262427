#include "editor/language/SpellingMarks.h"

#include <algorithm>

namespace
{
using Range = SpellingMarks::Range;
using Mark = SpellingMarks::Mark;

// Where a position stands after a change; one within what was removed comes to its beginning.
int moved(int at, int position, int removed, int added)
{
    if (at <= position)
        return at;
    return at >= position + removed ? at - removed + added : position;
}
} // namespace

void SpellingMarks::reset(int length)
{
    m_marks.clear();
    m_unread.clear();
    if (length > 0)
        m_unread.push_back({0, length});
}

// A mark that ends or begins where the change is belongs to it, for the word goes on there.
void SpellingMarks::change(int position, int removed, int added)
{
    Range touched{position, position + removed};
    const auto first = std::partition_point(m_marks.begin(), m_marks.end(), [&](const Mark &mark) {
        return mark.range.end < touched.begin;
    });
    const auto last = std::partition_point(
        first, m_marks.end(), [&](const Mark &mark) { return mark.range.begin <= touched.end; });
    if (first != last)
        touched = {std::min(touched.begin, first->range.begin),
                   std::max(touched.end, std::prev(last)->range.end)};
    for (auto mark = m_marks.erase(first, last); mark != m_marks.end(); ++mark)
        mark->range = {mark->range.begin - removed + added, mark->range.end - removed + added};
    for (Range &range : m_unread)
        range = {moved(range.begin, position, removed, added),
                 moved(range.end, position, removed, added)};
    std::erase_if(m_unread, [](const Range &range) { return range.begin >= range.end; });
    // What follows may begin a line now.
    forget({touched.begin, touched.end - removed + added + 1});
}

void SpellingMarks::forget(Range range)
{
    const auto first = std::partition_point(
        m_unread.begin(), m_unread.end(), [&](const Range &one) { return one.end < range.begin; });
    auto last = first;
    for (; last != m_unread.end() && last->begin <= range.end; ++last)
        range = {std::min(range.begin, last->begin), std::max(range.end, last->end)};
    m_unread.insert(m_unread.erase(first, last), range);
}

void SpellingMarks::read(Range range)
{
    std::vector<Range> unread;
    for (const Range &one : m_unread) {
        if (one.begin < range.begin)
            unread.push_back({one.begin, std::min(one.end, range.begin)});
        if (one.end > range.end)
            unread.push_back({std::max(one.begin, range.end), one.end});
    }
    m_unread = std::move(unread);
}

bool SpellingMarks::put(Range range, const std::vector<Mark> &marks)
{
    read(range);
    const auto first = std::partition_point(m_marks.begin(), m_marks.end(), [&](const Mark &mark) {
        return mark.range.end <= range.begin;
    });
    const auto last = std::partition_point(
        first, m_marks.end(), [&](const Mark &mark) { return mark.range.begin < range.end; });
    if (std::equal(first, last, marks.begin(), marks.end()))
        return false;
    m_marks.insert(m_marks.erase(first, last), marks.begin(), marks.end());
    return true;
}

std::optional<Range> SpellingMarks::unreadIn(Range range) const
{
    for (const Range &one : m_unread)
        if (one.end > range.begin && one.begin < range.end)
            return Range{std::max(one.begin, range.begin), std::min(one.end, range.end)};
    return std::nullopt;
}

std::optional<Range> SpellingMarks::firstUnread() const
{
    return m_unread.empty() ? std::nullopt : std::optional(m_unread.front());
}

std::pair<SpellingMarks::Marks::const_iterator, SpellingMarks::Marks::const_iterator>
SpellingMarks::in(Range range) const
{
    const auto first = std::partition_point(m_marks.begin(), m_marks.end(), [&](const Mark &mark) {
        return mark.range.end < range.begin;
    });
    const auto last = std::partition_point(
        first, m_marks.end(), [&](const Mark &mark) { return mark.range.begin <= range.end; });
    return {first, last};
}
