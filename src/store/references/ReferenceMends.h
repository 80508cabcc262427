#pragma once

#include "richtext/Replacements.h"
#include "store/references/ReferenceMarks.h"

// What mends a doubtful reference: some characters of its line replaced by others, and no more of
// them than has to be. The positions are in the line, ascending; -1 is the break before it, -2 the
// character before that. The texts are without breaks.
struct Mend {
    QString caption; // French, for a menu
    QList<Replacement> replacements;
};

// None for a mark that is not doubtful, and where only the author can tell what is to be done.
// previous is the line before; both are without their breaks.
QList<Mend> mendsOf(const ReferenceMark &mark, QStringView line, QStringView previous,
                    const QString &phrase);
