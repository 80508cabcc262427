#pragma once

#include "store/references/ReferenceMarks.h"

#include <QByteArray>
#include <QList>
#include <QString>

// Something in an adventure that its author should look at.

// In the order in which they are listed: faults, remarks, notes.
enum class FindingKind : quint8 {
    EmptyTarget, // a reference to a number without a text
    BeyondLast,  // a reference to a number above 2000
    Unreachable, // no reading comes to the paragraph
    Trap,        // no reading that comes to these paragraphs can end
    NoEnding,    // no reading at all can end
    OnlyItself,  // the only choice is the paragraph itself
    Ending,      // nothing goes on from here
    SameTarget,  // two references to the same paragraph
    Itself,      // a choice, beside others, is the paragraph itself
    Doubtful,    // a reference that is read otherwise than it looks
    NotRead,     // looks like a reference and is none
    NotLinked,   // the HTML will have no link there
    Grammar,     // what another program says of the grammar, when it is asked
    ToDo,        // the author has left a mark there
    Short,       // hardly any words
};
constexpr int FindingKindCount = 15;

enum class Severity : quint8 { Fault, Remark, Note };
constexpr int SeverityCount = 3;

struct Finding {
    FindingKind kind;
    int number;         // the paragraph
    int target = 0;     // EmptyTarget, BeyondLast, SameTarget: where the reference leads.
                        // Unreachable: what the paragraph hangs from, 0 when nothing leads to it
    QList<int> members; // Trap: its paragraphs, ascending. Unreachable: the ring that all of
                        // this hangs from, if it is one
    QList<int> loop;    // Trap: a way within it whose last paragraph leads to its first
    qsizetype position = 0;      // the place in the plain text
    qsizetype length = 0;        // 0: there is none, or the paragraph as a whole
    QString text;                // the words at that place
    QString around;              // the sentence that they stand in, or that the finding speaks of
    qsizetype placeInAround = 0; // where the place begins in it
    ReferenceMark mark{};        // Doubtful, NotRead and BeyondLast: see mendsInText()
    QString phrase;              // the target phrase
    QString message;             // Grammar: what is the matter, in French

    Severity severity() const;
    bool operator==(const Finding &) const = default;
    // What is the matter, in French.
    QString sentence() const;
    // SHA-256 of what it speaks of, by which an accepted finding is known again. It stays the same
    // when the numbers of references change, and becomes another when the sentence does.
    QByteArray sentenceHash() const;
};

Severity severityOf(FindingKind kind);

// "vide", "hors-limites": as scripts and files call it. UTF-8.
const char *kindName(FindingKind kind);
// "Renvois douteux": in French, what a list calls all of a kind.
QString kindTitle(FindingKind kind);
// "faute", "remarque", "note".
const char *severityName(Severity severity);
