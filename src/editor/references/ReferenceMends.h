#pragma once

#include "editor/references/ReferenceMarks.h"

// What mends a doubtful reference: some characters of its line replaced by others.
struct Mend {
    QString caption;    // French, for a menu
    qsizetype position; // in the line; -1 is the break before it, -2 the character before that
    qsizetype length;
    QString text; // without breaks
};

// None for a mark that is not doubtful, and where only the author can tell what is to be done.
// previous is the line before; both are without their breaks.
QList<Mend> mendsOf(const ReferenceMark &mark, QStringView line, QStringView previous,
                    const QString &phrase);
