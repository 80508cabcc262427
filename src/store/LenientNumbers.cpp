#include "store/LenientNumbers.h"

#include "platform/Ascii.h"
#include "store/Variables.h"

#include <QByteArray>
#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n';
}

int clampToInt(double value)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, lowest, highest));
}

// Takes the characters that can stand in a number, in order, into ASCII without the blanks.
class NumberTaker
{
public:
    explicit NumberTaker(QStringView text) : m_rest(text) {}

    QByteArray take()
    {
        takeDigits();
        if (takeIf(u'.'))
            takeDigits();
        if (!m_taken.isEmpty() && m_taken != ".")
            takeExponent();
        return m_taken;
    }

private:
    QChar next()
    {
        while (!m_rest.isEmpty() && isBlank(m_rest.front()))
            m_rest = m_rest.sliced(1);
        return m_rest.isEmpty() ? QChar() : m_rest.front();
    }

    void takeOne()
    {
        m_taken += m_rest.front().toLatin1();
        m_rest = m_rest.sliced(1);
    }

    bool takeIf(QChar wanted)
    {
        if (next() != wanted || m_rest.isEmpty())
            return false;
        takeOne();
        return true;
    }

    void takeDigits()
    {
        while (isAsciiDigit(next()))
            takeOne();
    }

    // An "e" without digits behind it is no exponent and is given back.
    void takeExponent()
    {
        const QByteArray mantissa = m_taken;
        if (!takeIf(u'e') && !takeIf(u'E'))
            return;
        if (!takeIf(u'-'))
            takeIf(u'+');
        const qsizetype before = m_taken.size();
        takeDigits();
        if (m_taken.size() == before)
            m_taken = mantissa;
    }

    QStringView m_rest;
    QByteArray m_taken;
};
} // namespace

double lenientNumber(QStringView text)
{
    bool ok = false;
    const double value = NumberTaker(text).take().toDouble(&ok);
    return ok ? value : 0.0;
}

double lenientMeasure(QString text)
{
    return lenientNumber(text.replace(u',', u'.'));
}

int roundHalfEven(double value)
{
    const double below = std::floor(value);
    const double fraction = value - below;
    if (fraction != 0.5)
        return clampToInt(std::round(value));
    return clampToInt(std::fmod(below, 2.0) == 0.0 ? below : below + 1.0);
}

int roundHalfAway(double value)
{
    return clampToInt(std::round(value));
}

std::optional<int> lenientParagraph(QStringView text)
{
    const int n = roundHalfEven(lenientNumber(text));
    return n <= Variables::LastParagraph ? std::optional(n) : std::nullopt;
}
