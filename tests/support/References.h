#pragma once

#include "store/Variables.h"

#include <QRandomGenerator>
#include <QStringList>

// Adventures that are made of references alone.

inline void refer(Variables &variables, int from, int to)
{
    variables.Written.at(from) = 1;
    variables.refIndex.at(from) += fourDigits(to) + u'/';
}

// From lines such as "1: 2 3"; all that begin a line are written. A reference may be any text.
inline Variables referring(const QString &lines)
{
    Variables variables;
    for (const QString &line : lines.split(u'\n')) {
        const int n = line.section(u':', 0, 0).toInt();
        variables.Written.at(n) = 1;
        for (const QString &to : line.section(u':', 1).split(u' ', Qt::SkipEmptyParts))
            variables.refIndex.at(n) += to.rightJustified(4, u'0') + u'/';
    }
    RecomputeWrittenRange(variables);
    return variables;
}

// References at random among paragraphs 1 to count, 1 written in any case; readings of some start
// at 5 too.
inline Variables randomBook(quint32 seed, int count)
{
    QRandomGenerator random(seed);
    Variables variables;
    variables.Written.at(1) = 1;
    for (int edge = random.bounded(8, 24); edge > 0; --edge)
        refer(variables, random.bounded(1, count + 1), random.bounded(1, count + 1));
    RecomputeWrittenRange(variables);
    variables.extras.starts = {1};
    if (seed % 3 == 0 && variables.Written.at(5) == 1)
        variables.extras.starts.append(5);
    return variables;
}
