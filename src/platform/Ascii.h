#pragma once

#include <QChar>

// Digits as files and markup have them: no others of Unicode. The names differ so that algorithms
// can take them.
constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr bool isAsciiDigit(QChar c)
{
    return c >= QChar(u'0') && c <= QChar(u'9');
}

// The value of a digit of base 16 in either case, or -1.
constexpr int hexadecimalValue(char c)
{
    if (isDigit(c))
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}
