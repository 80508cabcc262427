#pragma once

#include "store/Variables.h"

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
