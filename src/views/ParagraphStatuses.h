#pragma once

#include "store/ParagraphArray.h"
#include "store/Variables.h"

#include <QChar>
#include <QColor>
#include <QString>

// What each number of the adventure is, as the views show it.
enum ParagraphStatus : quint8 {
    Empty,    // no text, and nothing refers to it
    Written,  // has text, with a reference at least
    DeadEnd,  // has text, without a reference
    Reserved, // no text, but referred to
    Current,  // no status of a number: the colour of the frame around the current one
    Orphan,   // has text, and nothing refers to it
};
constexpr quint8 ParagraphStatusCount = 6;

struct ParagraphStatuses {
    ParagraphArray<quint8, 2001> status;
    int maxShown = 0; // the highest number that is written or referred to
};

// From the reference index alone; no text is read. A paragraph that refers to itself is referred
// to. Entries of the index that are no number 0..2000 are references that lead nowhere.
ParagraphStatuses classifyParagraphs(const Variables &variables);

// In French, as the legends name it.
QString statusName(quint8 status);

// What they call numbers that are fixed.
QString fixedName();

QColor statusColour(quint8 status);

// A small sign by which statuses are told apart without their colours: a letter, or a blank for
// numbers that are empty.
QChar statusLetter(quint8 status);
