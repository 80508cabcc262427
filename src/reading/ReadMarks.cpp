#include "reading/ReadMarks.h"

#include "platform/Errors.h"
#include "store/AdventureChanges.h"

namespace
{
constexpr int KeptAfter = 2000; // milliseconds
} // namespace

ReadMarks::ReadMarks(Variables &variables) : m_variables(variables)
{
    m_keeping.setSingleShot(true);
    m_keeping.setInterval(KeptAfter);
    connect(&m_keeping, &QTimer::timeout, this, &ReadMarks::keep);
    follow();
    takeOver(variables.extras.reading);
}

void ReadMarks::follow()
{
    const AdventureEvents *events = m_variables.Events.get();
    connect(events, &AdventureEvents::adventureReplaced, this, [this] {
        m_waiting = false;
        takeOver(m_variables.extras.reading);
    });
    connect(events, &AdventureEvents::extrasChanged, this, [this] {
        if (!m_waiting)
            takeOver(m_variables.extras.reading);
    });
    connect(events, &AdventureEvents::numbersChanged, this, [this](const NumberMap &newNumbers) {
        AdventureExtras marked;
        marked.reading = m_marks;
        takeOver(renumbered(marked, newNumbers).reading);
    });
}

void ReadMarks::takeOver(const ReadingMarks &marks)
{
    m_marks = marks;
    m_read = {};
    for (const int n : m_marks.read)
        m_read.at(n) = true;
    Q_EMIT changed();
}

ParagraphSet ReadMarks::takenFrom(int n) const
{
    ParagraphSet taken;
    for (const ReadingMarks::Choice &choice : m_marks.taken)
        if (choice.from == n)
            taken.at(choice.to) = true;
    return taken;
}

int ReadMarks::readCount() const
{
    int count = 0;
    for (int n = 1; n <= Variables::LastParagraph; ++n)
        if (m_variables.Written.at(n) == 1 && m_read.at(n))
            ++count;
    return count;
}

ParagraphSet ReadMarks::unread() const
{
    ParagraphSet set;
    for (int n = 1; n <= Variables::LastParagraph; ++n)
        set.at(n) = m_variables.Written.at(n) == 1 && !m_read.at(n);
    return set;
}

void ReadMarks::noteRead(int n)
{
    if (m_read.at(n))
        return;
    m_read.at(n) = true;
    m_marks.read.append(n);
    changeSoon();
}

void ReadMarks::noteChoices(const QList<int> &way)
{
    const qsizetype before = m_marks.taken.size();
    for (qsizetype i = 1; i < way.size(); ++i) {
        const ReadingMarks::Choice choice{way.at(i - 1), way.at(i)};
        if (!m_marks.taken.contains(choice))
            m_marks.taken.append(choice);
    }
    if (m_marks.taken.size() > before)
        changeSoon();
}

void ReadMarks::changeSoon()
{
    m_waiting = true;
    if (!m_keeping.isActive())
        m_keeping.start();
    Q_EMIT changed();
}

void ReadMarks::forget()
{
    write({{}, {}, m_marks.bookmarks});
}

void ReadMarks::setBookmarks(const QList<ReadingMarks::Bookmark> &bookmarks)
{
    write({m_marks.read, m_marks.taken, bookmarks});
}

void ReadMarks::write(const ReadingMarks &marks)
{
    AdventureExtras extras = m_variables.extras;
    extras.reading = marks;
    changeExtras(m_variables, extras);
    m_waiting = false;
    takeOver(m_variables.extras.reading);
}

void ReadMarks::keep()
{
    if (!m_waiting)
        return;
    try {
        write(m_marks);
    } catch (const UsmiraError &) {
        m_waiting = false; // bookmarks alone can be too much, and those were refused before
    }
}
