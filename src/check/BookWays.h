#pragma once

#include "check/StrongComponents.h"
#include "store/references/ReferenceWeb.h"

#include <QList>

struct Variables;

// Where readings of an adventure come to. Paragraph 0 is no part of the book: no reference can lead
// to it.
struct BookWays {
    explicit BookWays(const Variables &variables);

    ReferenceWeb web;
    QList<int> starts; // those of readingStarts() that are written, or the lowest number that is
    ParagraphSet written;
    ParagraphSet reached;   // by a reading; numbers without a text too
    ParagraphSet endable;   // from here a reading can come to an ending or to an empty number
    bool hasEnding = false; // a reading comes to a written paragraph without references
};

// The choices that paragraph n gives, which is 1..2000: its references in the order of the text,
// one that the text repeats each time. An empty number gives none.
QList<int> choicesAt(const Variables &variables, int n);

// What can be come to from these paragraphs, they included, by the lists of a web: outgoing or
// incoming.
ParagraphSet connected(const ParagraphArray<QList<int>, ParagraphSet::count()> &lists,
                       const QList<int> &from);
