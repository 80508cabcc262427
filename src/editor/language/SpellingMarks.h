#pragma once

#include <optional>
#include <vector>

// What of a text is doubtful, and which parts of it are still to be read, while the text is being
// written: whatever stands behind a change moves along, and only what was touched is to be read
// again. Positions are those of a document, from 0; ranges go from begin to before end.
class SpellingMarks
{
public:
    struct Range {
        int begin;
        int end;
        bool operator==(const Range &) const = default;
    };
    struct Mark {
        Range range;
        bool isCode; // between < and >: nothing doubtful, but a change may make words of it
        bool operator==(const Mark &) const = default;
    };

    // Another text: nothing of it is read.
    void reset(int length);

    // The text has changed as QTextDocument tells it. Marks that it touches are to be read again.
    void change(int position, int removed, int added);

    // A part is to be read again, with what is marked there until then.
    void forget(Range range);

    // Of a part that was read, these are the marks, ascending; false: they were there before.
    bool put(Range range, const std::vector<Mark> &marks);

    bool isRead() const { return m_unread.empty(); }
    // The first unread part within a range, if there is any.
    std::optional<Range> unreadIn(Range range) const;
    std::optional<Range> firstUnread() const;

    // Marks that reach into a range or touch its ends.
    using Marks = std::vector<Mark>;
    std::pair<Marks::const_iterator, Marks::const_iterator> in(Range range) const;

private:
    void read(Range range);

    Marks m_marks;               // ascending, apart
    std::vector<Range> m_unread; // ascending, apart
};
