#pragma once

#include "check/Finding.h"
#include "check/PlainTexts.h"
#include "store/extras/AdventureExtras.h"

class TextCheck;
struct BookWays;
struct Variables;

// The order of findings: by kinds, then numbers, then places.
bool comesBefore(const Finding &a, const Finding &b);

// In that order.
struct CheckedBook {
    QList<Finding> findings;
    QList<Finding> accepted; // those that were put aside
};

// Checks the whole open adventure: its reference index and these texts, from the starts that its
// extras name and without what is accepted there. Takes time as the texts and the references are
// long and many.
CheckedBook CheckBook(const Variables &variables, const PlainTexts &texts);

// The same by its two parts, for a check that is repeated. What is found in the text and the
// references of one paragraph, in no order, stays so until they, the target phrase or which
// paragraphs are written change; check is of these ways.
QList<Finding> findingsIn(int n, const TextCheck &check, const BookWays &ways,
                          const PlainTexts &texts);
CheckedBook CheckBook(const Variables &variables, const BookWays &ways, const PlainTexts &texts,
                      const QList<Finding> &ofTexts);

// With findings of another check, parted by what is accepted.
CheckedBook withFindings(const Variables &variables, CheckedBook book,
                         const QList<Finding> &findings);

// "3 fautes, 12 remarques"; notes are not counted.
QString findingCounts(const QList<Finding> &findings);

// How a finding is put aside. A trap that has been counts by any of its members.
AcceptedFinding accepted(const Finding &finding);

// The same extras with these findings put aside as well, and with them taken back.
AdventureExtras withAccepted(AdventureExtras extras, const QList<Finding> &findings);
AdventureExtras withoutAccepted(AdventureExtras extras, const QList<Finding> &findings);
