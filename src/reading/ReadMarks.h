#pragma once

#include "check/StrongComponents.h"
#include "store/extras/AdventureExtras.h"

#include <QObject>
#include <QTimer>

struct Variables;

// What of the open adventure was read, and by which choices, with the bookmarks: what the adventure
// says, and what was read since that was last written. Each reading changes it, and to write it
// takes the disk a while; so it is written once there was time for a few of them, or by keep().
class ReadMarks : public QObject
{
    Q_OBJECT

public:
    explicit ReadMarks(Variables &variables);

    bool isRead(int n) const { return m_read.at(n); }
    // Where the choices lead that were made at a paragraph.
    ParagraphSet takenFrom(int n) const;
    // The written paragraphs, 1..2000, that were read, and that were not.
    int readCount() const;
    ParagraphSet unread() const;
    const QList<ReadingMarks::Bookmark> &bookmarks() const { return m_marks.bookmarks; }

    void noteRead(int n);
    // The choices by which one goes from paragraph to paragraph.
    void noteChoices(const QList<int> &way);
    // Nothing was read from now on. The bookmarks stay.
    void forget();
    // Throws LimitError when an adventure cannot have so much.
    void setBookmarks(const QList<ReadingMarks::Bookmark> &bookmarks);

    // The adventure says all of it from now on.
    void keep();

Q_SIGNALS:
    void changed();

private:
    void follow();
    void takeOver(const ReadingMarks &marks);
    void changeSoon();
    void write(const ReadingMarks &marks);

    Variables &m_variables;
    ReadingMarks m_marks;
    ParagraphSet m_read;
    bool m_waiting = false; // to be written
    QTimer m_keeping;
};
