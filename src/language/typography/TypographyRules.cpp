#include "language/typography/TypographyRules.h"

#include "language/typography/LineRules.h"
#include "language/typography/QuoteRules.h"
#include "language/typography/ReferenceRules.h"
#include "language/typography/SignRules.h"
#include "language/typography/SpaceRules.h"
#include "language/typography/TypographySource.h"
#include "language/typography/WordRules.h"

// References come first: where another mend reaches into one of theirs, theirs stays.
QList<TypographyMend> typographyMends(const QString &text, const TypographyRules &rules)
{
    TypographySource source(text, rules.phrase);
    mendReferences(source, rules.phrase);
    mendEmptyLines(source);
    mendQuotes(source);
    mendSigns(source);
    mendDialogues(source);
    mendSpaces(source, rules.narrow);
    mendWords(source, rules.isWord);
    return keepingReferences(text, source.mends(), rules.phrase);
}

QString withMends(const QString &text, const QList<TypographyMend> &mends)
{
    QString result;
    result.reserve(text.size() + mends.size());
    qsizetype end = 0;
    for (const TypographyMend &mend : mends) {
        result += QStringView(text).mid(end, mend.position - end);
        result += mend.replacement;
        end = mend.position + mend.length;
    }
    return result += QStringView(text).mid(end);
}
