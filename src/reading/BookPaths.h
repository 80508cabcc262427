#pragma once

#include "check/StrongComponents.h"

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
    QList<int> wayTo(int n) const;

    // The paragraphs that every reading comes through before it comes to n for the first time, in
    // the order in which it does. Of several starts none need be among them.
    QList<int> passagesTo(int n) const;

private:
    void findShortest(const BookWays &ways);
    void findDominators(const BookWays &ways);
    QList<int> order(const BookWays &ways);
    int meeting(int a, int b) const;
    QList<int> up(const ParagraphArray<int, 2001> &parents, int n) const;

    // 0, which is no number of the book, stands for the beginning of all readings.
    ParagraphSet m_reached;
    ParagraphArray<int, 2001> m_before;    // the paragraph before on a shortest way
    ParagraphArray<int, 2001> m_dominator; // the last paragraph that cannot be got around
    ParagraphArray<int, 2001> m_rank;      // of a search in depth: what leads on ranks higher
};
