#pragma once

#include "richtext/Replacements.h"
#include "store/references/ReferenceMarks.h"
#include "store/references/ReferenceMends.h"

#include <QList>
#include <QString>

struct Variables;

// The doubtful references of a whole adventure, and those among them that a renumbering garbles.

struct DoubtfulReference {
    int paragraph;
    ReferenceMark mark; // its places are in the paragraph's text
    QString words;      // what is marked, without tabs
    bool garbled;       // see isGarbled()
};

// Those of one text, in its order.
QList<DoubtfulReference> doubtfulReferences(int n, const QString &text, const QString &phrase);

// Those of all stored texts, ascending. Notes the numbers of the texts that cannot be read.
QList<DoubtfulReference> doubtfulReferences(const Variables &variables, QList<int> &unreadable);

// Whether a reference comes out wrong when its text is rewritten with new numbers, whether its own
// changes or not. As many characters directly behind the phrase are replaced as the number that is
// read has digits: something is left over, or taken away, unless just these digits stand there.
bool isGarbled(const ReferenceMark &mark, QStringView text, const QString &phrase);

// As mendsOf(), for a mark whose place is in a whole text; so are those of the replacements.
QList<Mend> mendsInText(ReferenceMark mark, const QString &text, const QString &phrase);

// What mends the references of a text that would be garbled, ascending: for each the mend after
// which it leads where it leads now, if there is one, else the first that the author is offered.
// Those that only the author can mend stay.
QList<Replacement> mendsOfGarbled(const QString &text, const QString &phrase);
