#include "store/Variables.h"

#include "store/AdventureEvents.h"

Variables::Variables() : Events(std::make_shared<AdventureEvents>()) {}

QString fourDigits(int n)
{
    return QStringLiteral("%1").arg(n, 4, 10, QLatin1Char('0'));
}
