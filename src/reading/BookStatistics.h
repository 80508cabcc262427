#pragma once

#include "reading/TextSizes.h"

#include <QList>

struct BookWays;
struct Variables;

// What a book is in numbers.
struct BookStatistics {
    struct Paragraph {
        int number;
        int words;
        int signs;
        int choices; // its references, repeated ones each time
        bool operator==(const Paragraph &) const = default;
    };
    // A written paragraph without references.
    struct Ending {
        int number;
        QList<int> way;      // a shortest one to it, itself included; empty when nothing leads here
        QList<int> passages; // those that every reading comes through that gets here
        bool operator==(const Ending &) const = default;
    };
    // Of a measure.
    struct Span {
        int shortest = 0; // the paragraph's number; the lowest such
        int longest = 0;
    };

    int words = 0;
    int signs = 0;
    int choices = 0;
    int reached = 0;             // written paragraphs that a reading comes to
    QList<int> starts;           // see BookWays
    QList<Paragraph> paragraphs; // those that are written, ascending
    QList<Ending> endings;       // ascending

    // By words; of no paragraph: zeros.
    Span span() const;

    bool operator==(const BookStatistics &) const = default;
};

// Of the open adventure, whose ways and sizes these are. Paragraph 0 is no part of the book.
BookStatistics bookStatistics(const Variables &variables, const BookWays &ways,
                              const TextSizes &sizes);
