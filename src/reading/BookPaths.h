#pragma once

#include "reading/ShortestWay.h"

#include <QList>

struct BookWays;

// How readings of a book get to its paragraphs: the shortest ways from the starts, and what no
// reading gets around. Takes time as the references are many, and at worst as they are times the
// paragraphs.
class BookPaths
{
public:
    explicit BookPaths(const BookWays &ways);

    // A shortest way from a start, which is its first number, to n, its last. Empty when no reading
    // comes to n.
    QList<int> wayTo(int n) const { return m_shortest.to(n); }

    // The paragraphs that every reading comes through before it comes to n for the first time, in
    // the order in which it does. Of several starts none need be among them.
    QList<int> passagesTo(int n) const;

private:
    void findDominators(const BookWays &ways);
    QList<int> order(const BookWays &ways);
    int meeting(int a, int b) const;

    ShortestWays m_shortest;
    // The last paragraph that cannot be got around. 0, which is no number of the book, stands for
    // the beginning of all readings.
    ParagraphArray<int, 2001> m_dominator;
    ParagraphArray<int, 2001> m_rank; // of a search in depth: what leads on ranks higher
};
