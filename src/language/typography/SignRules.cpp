#include "language/typography/SignRules.h"

#include "language/typography/TypographySource.h"

#include <algorithm>

namespace
{
// Whether the sign stands there exactly so many times.
bool isRun(const TypographySource &source, qsizetype at, QChar sign, qsizetype length)
{
    if (source.at(at - 1) == sign || source.at(at + length) == sign)
        return false;
    for (qsizetype i = at; i < at + length; ++i)
        if (source.at(i) != sign)
            return false;
    return true;
}

// A foot or a quotation mark has no letter on one of its sides. A word may begin with the author's
// own HTML.
void mendApostrophe(TypographySource &source, qsizetype at)
{
    const QChar next = source.at(at + 1);
    if (source.at(at - 1).isLetter() &&
        (next.isLetterOrNumber() || QStringView(u"«“\"").contains(next) ||
         (next == u'<' && source.isKept(at + 1))))
        source.mend({TypographyKind::Apostrophe, at, 1, QStringLiteral("’")}, u'’');
}

// Four dots are somebody's own, and ".../" is a path.
void mendEllipsis(TypographySource &source, qsizetype at)
{
    const auto around = [&](qsizetype i) { return QStringView(u"…/\\").contains(source.at(i)); };
    if (isRun(source, at, u'.', 3) && !around(at - 1) && !around(at + 3))
        source.mend({TypographyKind::Ellipsis, at, 3, QStringLiteral("…")}, u'…');
}

// At the start of a line it is a list's or a speaker's, in "<--" and "-->" an arrow.
void mendDash(TypographySource &source, const TypographySource::Line &line, qsizetype at)
{
    const auto begin = source.text().cbegin();
    const bool leads =
        std::all_of(begin + line.start, begin + at, [](QChar c) { return c.isSpace(); });
    if (!leads && isRun(source, at, u'-', 2) && source.at(at - 1) != u'<' &&
        source.at(at + 2) != u'>')
        source.mend({TypographyKind::Dash, at, 2, QStringLiteral("–")}, u'–');
}

void mendLine(TypographySource &source, const TypographySource::Line &line)
{
    const auto begin = source.text().cbegin();
    const bool hasWords = std::any_of(begin + line.start, begin + line.end,
                                      [](QChar c) { return c.isLetterOrNumber(); });
    for (qsizetype at = line.start; at < line.end; ++at) {
        const QChar c = source.at(at);
        if (c == u'\'')
            mendApostrophe(source, at);
        else if (c == u'.')
            mendEllipsis(source, at);
        else if (c == u'-' && hasWords)
            mendDash(source, line, at);
    }
}
} // namespace

void mendSigns(TypographySource &source)
{
    for (const TypographySource::Line &line : source.lines())
        mendLine(source, line);
}
