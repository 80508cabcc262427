#pragma once

#include "store/HistoryStep.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

struct Variables;

// What belongs to an adventure beside its paragraphs: it travels inside the adventure file, behind
// all that other readers of the format look at. See ExtrasBlock.h for the bytes, and
// changeExtras() in AdventureChanges.h for the one way to change it. All numbers are 0..2000.

// A finding about the book that the author has put aside for as long as the sentence stays.
struct AcceptedFinding {
    QString kind;        // a word of the check's own
    int number = 0;      // the paragraph
    QByteArray sentence; // SHA-256 of the sentence that the finding speaks of, 32 bytes
    int target = 0;      // the paragraph that it is about, if it is about a reference to one
    bool operator==(const AcceptedFinding &) const = default;
};

// How far the author has read his book.
struct ReadingMarks {
    struct Choice {
        int from = 0;
        int to = 0;
        bool operator==(const Choice &) const = default;
    };
    struct Bookmark {
        QString name;
        QList<int> way; // from a start to the place itself
        bool operator==(const Bookmark &) const = default;
    };
    QList<int> read; // each once
    QList<Choice> taken;
    QList<Bookmark> bookmarks;
    bool operator==(const ReadingMarks &) const = default;
};

// What a book says of itself when it leaves the editor. Texts may be empty, and have line feeds.
struct BookFacts {
    QString title; // empty: that of the adventure's file
    QString author;
    QString language = QStringLiteral("fr"); // by BCP 47
    QString dedication;
    QString before; // stands before the first paragraph
    QString after;
    QByteArray cover; // a PNG or JPEG file, or nothing
    bool operator==(const BookFacts &) const = default;
};

// A word that is right where it stands, in this paragraph alone.
struct IgnoredWord {
    int number = 0;
    QString word;
    bool operator==(const IgnoredWord &) const = default;
};

// What another version of the program has put there: nobody here understands it, and nobody loses
// it.
struct UnknownRecord {
    QByteArray tag; // four bytes
    QByteArray bytes;
    bool operator==(const UnknownRecord &) const = default;
};

struct AdventureExtras {
    QList<int> starts; // where readings start, each once; none: see readingStarts()
    QList<AcceptedFinding> accepted;
    ReadingMarks reading;
    BookFacts book;
    QStringList words; // names and places that spelling takes as right, sorted, each once
    QList<IgnoredWord> ignored;
    QList<UnknownRecord> unknown; // in the order of the file
    bool operator==(const AdventureExtras &) const = default;
};

// Where readings of the open adventure start: what the author has said, else paragraph 1, or the
// lowest that is written when 1 is empty.
QList<int> readingStarts(const Variables &variables);

// The same once paragraphs have other numbers. All numbers go along, whether written or not, so
// that the inverse map brings all of them back.
AdventureExtras renumbered(AdventureExtras extras, const NumberMap &numbers);

// What goes along when these paragraphs become an adventure of their own: starts, accepted findings
// and ignored words of theirs, all words of the adventure, and what is unknown, which may speak of
// the whole book. Readings are of another book.
AdventureExtras extrasOf(const QList<int> &numbers, AdventureExtras extras);
