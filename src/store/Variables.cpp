#include "store/Variables.h"

#include "store/AdventureEvents.h"
#include "store/CommandHistory.h"

Variables::Variables()
    : History(std::make_shared<CommandHistory>()), Events(std::make_shared<AdventureEvents>())
{
}

void RecomputeWrittenRange(Variables &variables)
{
    qint16 lowest = 0;
    while (lowest < Variables::LastParagraph && variables.Written.at(lowest) == 0)
        ++lowest;
    qint16 highest = Variables::LastParagraph;
    while (highest > lowest && variables.Written.at(highest) == 0)
        --highest;
    const bool none = variables.Written.at(lowest) == 0;
    variables.LowestWritten = none ? qint16{1} : lowest;
    variables.HighestWritten = none ? qint16{1} : highest;
}

QString fourDigits(int n)
{
    return QStringLiteral("%1").arg(n, 4, 10, QLatin1Char('0'));
}
