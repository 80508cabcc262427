#include "convert/book/XmlText.h"

namespace
{
bool isControl(char16_t c)
{
    return (c < 0x20 && c != '\t' && c != '\n') || (c >= 0x7F && c < 0xA0);
}

bool isNoCharacter(char16_t c)
{
    return c >= 0xFFFE || (c >= 0xFDD0 && c <= 0xFDEF);
}

// Where a character lies in two halves, both are there.
bool isWhole(QStringView text, qsizetype i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate())
        return i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
    return i > 0 && text.at(i - 1).isHighSurrogate();
}
} // namespace

QString xmlText(QStringView text)
{
    QString escaped;
    escaped.reserve(text.size() + text.size() / 16);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'&')
            escaped += QStringLiteral("&amp;");
        else if (c == u'<')
            escaped += QStringLiteral("&lt;");
        else if (c == u'>')
            escaped += QStringLiteral("&gt;");
        else if (c == u'"')
            escaped += QStringLiteral("&quot;");
        else if (c.isSurrogate() ? isWhole(text, i)
                                 : !isControl(c.unicode()) && !isNoCharacter(c.unicode()))
            escaped += c;
    }
    return escaped;
}
