#pragma once

#include "check/StrongComponents.h"

#include <QList>
#include <QMap>
#include <random>

struct BookWays;
struct Variables;

// Readings that choose at random. A paragraph's choices are its references, in the order of the
// text and each as likely as the others, also one that the text repeats. A reading ends at a
// paragraph without any, or at a number without a text.

enum class ReadingEnd : quint8 {
    Ending,
    EmptyNumber,
    Loop, // it got caught where nothing leads out, or came to no end in thousands of steps
};

struct RandomReading {
    // A loop that nothing leads out of has its first paragraph twice, at the end too.
    QList<int> way;
    ReadingEnd end = ReadingEnd::Ending;
    QList<int> loop; // Loop: the paragraphs that it goes around in, ascending
};

// Enough for shares that can be relied on, and so few that nobody waits for them; and where nobody
// asks for other ones, these.
constexpr int UsualReadings = 1000;
constexpr quint32 UsualSeed = 1;

// What many readings come to.
struct RandomReadings {
    struct Loop {
        QList<int> members; // ascending
        int readings;
    };
    int count = 0; // none where the book has no paragraph
    quint32 seed = 0;
    QMap<int, int> lengths;          // of those that ended: paragraphs read, and how many did so
    ParagraphArray<int, 2001> met;   // how many readings came to the number
    ParagraphArray<int, 2001> ended; // how many ended there
    QList<Loop> loops;               // what most got caught in comes first
    double meanShare = 0;            // of the written paragraphs, that a reading meets
};

// Reads the book that it was made of. The same seed gives the same readings, on every system.
class RandomReader
{
public:
    // ways must outlive it, and be of the adventure as it is.
    RandomReader(const Variables &variables, const BookWays &ways, quint32 seed);

    // One reading from a paragraph, 1..2000.
    RandomReading read(int start);

    // Many from the starts of the book, at random where it has several. Takes time as they are
    // long.
    RandomReadings read(const QList<int> &starts, int count);

private:
    struct Outcome {
        ReadingEnd end;
        int group; // Loop: of m_groups
    };
    Outcome walk(int start);
    bool meet(int n);
    int any(const QList<int> &numbers);
    void findGroups();

    const BookWays &m_ways;
    ParagraphArray<QList<int>, 2001> m_choices;
    QList<QList<int>> m_groups;           // paragraphs that lead to each other
    ParagraphArray<int, 2001> m_groupOf;  // of written ones
    ParagraphSet m_closed;                // nothing leads out of the group
    ParagraphArray<int, 2001> m_lastRead; // by which reading it was met last
    int m_reading = 0;
    QList<int> m_way;
    QList<int> m_met; // the same, each once
    std::mt19937 m_random;
    quint32 m_seed;
};

// That many readings of the open adventure from its starts.
RandomReadings randomReadings(const Variables &variables, const BookWays &ways, int count,
                              quint32 seed);

// For readings that need not be repeated.
quint32 anySeed();
