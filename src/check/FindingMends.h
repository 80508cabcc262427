#pragma once

#include "check/Finding.h"
#include "richtext/Replacements.h"
#include "store/references/ReferenceMends.h"

// What mends a finding in the text of its paragraph, the first what is meant most likely. None when
// the finding is no doubtful reference, only the author can tell what is to be done, or the words
// are no longer where they were found.
QList<Mend> mendsOf(const Finding &finding, const QString &text);

// What mends these findings of one paragraph in its text, each by the mend with this index, 0 for
// the first: ascending. Of two that reach into one another the first is mended.
QList<Replacement> replacementsOf(QList<Finding> findings, qsizetype mend, const QString &text);
