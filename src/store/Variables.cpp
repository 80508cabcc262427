#include "store/Variables.h"

QString fourDigits(int n)
{
    return QStringLiteral("%1").arg(n, 4, 10, QLatin1Char('0'));
}
