#pragma once

#include "check/StrongComponents.h"

#include <QList>

struct ReferenceWeb;

// The shortest ways by references from some paragraphs to all that can be come to; of two as short
// the one by what is named first in the texts.
class ShortestWays
{
public:
    ShortestWays(const ReferenceWeb &web, const QList<int> &starts);

    // What can be come to, the starts before all and then the nearest first.
    const QList<int> &reached() const { return m_reached; }

    // From a start, which is its first number, to n, its last. Empty when none leads there.
    QList<int> to(int n) const;

private:
    void reach(int from, const QList<int> &numbers);

    QList<int> m_reached;
    ParagraphArray<int, 2001> m_before; // the start itself of a start, -1 of what is not reached
};

// The paragraphs behind a first one on a shortest way by references to the nearest of those
// wanted, it included; of two as near the one named first in the texts. The first one itself does
// not count. Empty when none can be come to.
QList<int> shortestWay(const ReferenceWeb &web, int from, const ParagraphSet &wanted);
