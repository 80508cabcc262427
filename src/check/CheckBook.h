#pragma once

#include "check/Finding.h"
#include "check/PlainTexts.h"
#include "store/extras/AdventureExtras.h"

struct Variables;

// What the author has set for the check of a book, as AdventureExtras keeps it.
struct CheckSettings {
    QList<int> starts; // where readings begin, see BookWays
    // A trap is put aside by the number of any of its members.
    QList<AcceptedFinding> accepted;
};

// By kinds in their order, then numbers, then places.
struct CheckedBook {
    QList<Finding> findings;
    QList<Finding> accepted; // those that were put aside
};

// Checks the whole open adventure: its reference index and these texts. Takes time as the texts and
// the references are long and many.
CheckedBook CheckBook(const Variables &variables, const PlainTexts &texts,
                      const CheckSettings &settings);

// "3 fautes, 12 remarques"; notes are not counted.
QString findingCounts(const QList<Finding> &findings);

// How a finding is put aside.
AcceptedFinding accepted(const Finding &finding);
