#include "richtext/FindText.h"

#include <algorithm>

namespace
{
bool isWordCharacter(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}
} // namespace

qsizetype findText(QStringView text, const QString &needle, qsizetype start, FindOptions options)
{
    if (needle.isEmpty())
        return -1;
    const auto sensitivity = options.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    qsizetype found = text.indexOf(needle, std::max<qsizetype>(0, start), sensitivity);
    while (found >= 0 && options.wholeWord && !isWholeWord(text, found, needle.size()))
        found = text.indexOf(needle, found + 1, sensitivity);
    return found;
}

bool isWholeWord(QStringView text, qsizetype start, qsizetype length)
{
    const qsizetype end = start + length;
    return (start == 0 || !isWordCharacter(text.at(start - 1))) &&
           (end == text.size() || !isWordCharacter(text.at(end)));
}
