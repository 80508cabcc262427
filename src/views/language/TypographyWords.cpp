#include "views/language/TypographyWords.h"

#include <QCoreApplication>
#include <algorithm>

namespace
{
constexpr qsizetype WordsBefore = 14; // characters, so that a narrow column shows the place
constexpr qsizetype WordsBehind = 40;
constexpr qsizetype MostChanged = 60;

QString visible(QString changed)
{
    if (changed.size() > MostChanged)
        changed = changed.left(MostChanged) + u'…';
    return changed.replace(QStringLiteral("\r\n"), QStringLiteral("¶"))
        .replace(u' ', u'␣')
        .replace(u'\t', u'⇥')
        .replace(QChar(QChar::Nbsp), u'⍽')
        .replace(u'\u202f', QStringLiteral("⍽ı"));
}

QString onOneLine(QString around)
{
    return around.replace(QStringLiteral("\r\n"), QStringLiteral("¶")).replace(u'\t', u' ');
}

BoldWords around(const QString &text, const TypographyMend &mend, const QString &changed)
{
    const qsizetype from = std::max<qsizetype>(mend.position - WordsBefore, 0);
    QString before = onOneLine(text.mid(from, mend.position - from));
    if (from > 0)
        before.prepend(u'…');
    const QString behind = onOneLine(text.mid(mend.position + mend.length, WordsBehind));
    const QString shown = visible(changed);
    return {before + shown + behind, static_cast<int>(before.size()),
            static_cast<int>(shown.size())};
}
} // namespace

BoldWords wordsBefore(const QString &text, const TypographyMend &mend)
{
    return around(text, mend, text.mid(mend.position, mend.length));
}

BoldWords wordsAfter(const QString &text, const TypographyMend &mend)
{
    return around(text, mend, mend.replacement);
}

QString typographySigns()
{
    return QCoreApplication::translate(
        "bookTypography", "␣ espace, ⍽ espace insécable, ⍽ı fine insécable, ¶ fin de ligne");
}
