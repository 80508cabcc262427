#pragma once

#include "platform/Progress.h"
#include "store/Variables.h"

#include <QList>
#include <QStringView>
#include <optional>

// Which paragraphs each paragraph's text refers to. A reference is the target phrase, in any letter
// case, followed within five characters by a number 1..2000. The index holds each as "0026/", in
// the order of the text, repeats kept.

struct Reference {
    qsizetype position; // where the number's characters begin: just behind the phrase
    double number;      // as read, not rounded, within 1..2000
};

// The first reference of a plain text whose phrase begins at or after from. An empty phrase finds
// nothing.
std::optional<Reference> nextReference(QStringView text, const QString &phrase, qsizetype from);

// The index entry of a plain text.
QString referenceEntry(QStringView text, const QString &phrase);

// Sets refIndex[n] from paragraph n's plain text. n is 0..2000.
void ScanReferences(Variables &variables, QStringView text, int n);

// Scans every written paragraph's stored text. A paragraph whose text cannot be read gets an empty
// entry; its own reader reports it when it is shown.
void RebuildReferenceIndex(Variables &variables, const Progress &progress);

// Characters that a reference takes in an index entry: "0026/".
constexpr qsizetype IndexEntryLength = 5;

// The number that stands at a position of an index entry; nothing when it is no number 0..2000.
std::optional<int> indexedNumber(const QString &indexEntry, qsizetype position);

// The numbers that an index entry names, in order. Entries that are no number 0..2000 are skipped.
QList<int> referredParagraphs(const QString &indexEntry);

// The written paragraphs that refer to n, ascending, each once.
QList<int> incomingParagraphs(const Variables &variables, int n);

// The paragraph number under a caret position of a text, for following it; 0 when there is none.
// A number at the very start of the text is read without its first digit: required, as five
// characters are always read behind the character that the backward walk stops on.
int numberAround(QStringView text, qsizetype caret);
