#pragma once

#include "store/references/ReferenceDoubts.h"

#include <QList>
#include <QString>
#include <QStringView>

// The references of a text as the author sees them while writing, with what is doubtful about some:
// what looks like a reference and is none, and the other way round.

class WiderLookAlikes;

struct ReferenceMark {
    qsizetype position; // where what is marked begins: the digits, or all of what is doubtful
    qsizetype length;
    qsizetype digits; // where the number begins
    int seen;         // the number as one sees it
    int read;         // as following and renumbering read it; 0: not at all
    Doubt doubt;
    bool operator==(const ReferenceMark &) const = default;
};

// The marks of one line, ascending and apart from one another, brought up to date while the line is
// being written: only around what has changed is it read again. What is read is exactly what
// nextReference finds, since no reference goes over the end of a line. An empty phrase marks
// nothing.
class LineReferences
{
public:
    // previous is the line before it; both are without their breaks.
    void read(const QString &line, const QString &previous, const QString &phrase);

    const QList<ReferenceMark> &marks() const { return m_marks; }

private:
    QString m_line;
    QString m_previousEnd; // as much of it as counts
    QString m_phrase;
    QList<ReferenceMark> m_marks;
};

// The marks of a whole text, whose lines end with CR LF. With wider look-alikes those of numbers
// that are not read are more, and with any phrase as many as with a French one; the others stay.
QList<ReferenceMark> referenceMarks(QStringView text, const QString &phrase,
                                    const WiderLookAlikes *wider = nullptr);
