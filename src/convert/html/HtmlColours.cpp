#include "convert/html/HtmlColours.h"

#include "convert/html/HtmlText.h"
#include "platform/Ascii.h"

#include <algorithm>

namespace
{
constexpr qsizetype ComponentDigits = 3;
constexpr qsizetype IndexDigits = 2;

// The number that stands at a place of the text, of so many characters at most; 0 without digits.
int numberAt(QByteArrayView text, qsizetype from, qsizetype characters)
{
    int number = 0;
    const qsizetype end = std::min(from + characters, text.size());
    for (qsizetype at = from; at < end && isDigit(text.at(at)); ++at)
        number = number * 10 + (text.at(at) - '0');
    return number;
}
} // namespace

HtmlColours::HtmlColours(QByteArrayView rtf)
{
    const qsizetype first = rtf.indexOf("\r\n");
    const qsizetype second = first < 0 ? -1 : rtf.indexOf("\r\n", first + 2);
    if (second >= 0)
        readLine(rtf.sliced(first + 2, second - first - 2));
}

// A component that is missing leaves `at` at -1, "before the line": the search for the next one
// then begins again at the start of the line.
void HtmlColours::readLine(QByteArrayView line)
{
    const auto find = [line](QByteArrayView word, qsizetype from) {
        return line.indexOf(word, std::max<qsizetype>(from, 0));
    };
    qsizetype at = find("\\red", 0);
    while (at >= 0 && m_count < static_cast<int>(m_colours.size())) {
        const int red = numberAt(line, at + 4, ComponentDigits);
        at = find("\\green", at);
        const int green = numberAt(line, at + 6, ComponentDigits);
        at = find("\\blue", at);
        const int blue = numberAt(line, at + 5, ComponentDigits);
        m_colours.at(static_cast<std::size_t>(m_count++)) = red * 65536 + green * 256 + blue;
        at = find("\\red", at);
    }
}

QByteArray HtmlColours::hexOf(QByteArrayView index) const
{
    const int wanted = numberAt(index, 0, IndexDigits);
    const auto entry = static_cast<std::size_t>(wanted < m_count ? wanted : 0);
    return QByteArray::number(m_colours.at(entry), 16).toUpper().rightJustified(6, '0');
}
