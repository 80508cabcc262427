#pragma once

#include "check/Finding.h"
#include "check/PlainTexts.h"

struct Variables;

// A finding that the author has put aside. It counts as long as the sentence stays that it speaks
// of; its number is carried along by renumberings.
struct AcceptedFinding {
    FindingKind kind;
    int number; // for a trap that of any of its members
    QByteArray sentenceHash;

    bool operator==(const AcceptedFinding &) const = default;
};

// What the author has set for the check of a book.
struct CheckSettings {
    QList<int> starts; // where readings begin, see BookWays
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
