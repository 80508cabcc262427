#pragma once

#include "check/StrongComponents.h"
#include "store/references/ReferenceWeb.h"

#include <QList>

struct Variables;

// Where readings of an adventure come to. Paragraph 0 is no part of the book: no reference can lead
// to it.
struct BookWays {
    // Readings begin at these numbers; those without a text are passed over. When none is left they
    // begin at 1, or at the lowest written number when 1 is empty.
    BookWays(const Variables &variables, const QList<int> &starts);

    ReferenceWeb web;
    QList<int> starts;
    ParagraphSet written;
    ParagraphSet reached;   // by a reading; numbers without a text too
    ParagraphSet endable;   // from here a reading can come to an ending or to an empty number
    bool hasEnding = false; // a reading comes to a written paragraph without references
};

// What can be come to from these paragraphs, they included, by the lists of a web: outgoing or
// incoming.
ParagraphSet connected(const ParagraphArray<QList<int>, ParagraphSet::count()> &lists,
                       const QList<int> &from);
