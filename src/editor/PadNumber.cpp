#include "editor/PadNumber.h"

#include "store/Variables.h"

QString PadNumber(int n)
{
    if (n < 0 || n > 999)
        return n < 0 ? u'-' + fourDigits(-n) : fourDigits(n);
    const int spaces = n < 10 ? 5 : n < 100 ? 3 : 1;
    return QString(spaces, u' ') + QString::number(n);
}
