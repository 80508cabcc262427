#include "richtext/TextCleaning.h"

#include <algorithm>

namespace
{
bool isBreak(char16_t c)
{
    return (c >= 0x0a && c <= 0x0d) || c == 0x85 || c == 0x2028 || c == 0x2029;
}

bool isDropped(char16_t c)
{
    return (c < 0x20 && c != u'\t') || c == 0xfdd0 || c == 0xfdd1 || c == 0xfffc;
}

bool isOrdinary(QChar c)
{
    const char16_t code = c.unicode();
    return !isDropped(code) && !isBreak(code) && !c.isSurrogate();
}
} // namespace

QString cleanedText(QStringView text)
{
    if (std::all_of(text.begin(), text.end(), isOrdinary))
        return text.toString();
    QString cleaned;
    cleaned.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool more = i + 1 < text.size();
        if (c == u'\r' && more && text[i + 1] == u'\n')
            continue;
        if (c.isHighSurrogate() && more && text[i + 1].isLowSurrogate()) {
            cleaned += c;
            cleaned += text[++i];
        } else if (c.isSurrogate()) {
            cleaned += QChar(QChar::ReplacementCharacter);
        } else if (isBreak(c.unicode())) {
            cleaned += u'\n';
        } else if (!isDropped(c.unicode())) {
            cleaned += c;
        }
    }
    return cleaned;
}

QString cleanedFontName(const QString &name)
{
    // No screen shows more of a name, and a damaged table must not make one of the whole file.
    constexpr qsizetype longest = 256;
    return cleanedText(name).remove(u'\n').remove(u'\t').trimmed().left(longest).trimmed();
}
