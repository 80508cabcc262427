#include "store/references/DoubtfulReferences.h"

#include "platform/Ascii.h"
#include "store/DamagedTexts.h"
#include "store/ReferenceIndex.h"

#include <algorithm>

namespace
{
qsizetype endOfDigits(QStringView text, qsizetype at)
{
    while (at < text.size() && isAsciiDigit(text.at(at)))
        ++at;
    return at;
}

// Where the phrase of a mark that is doubtful ends, which begins with the phrase's words.
qsizetype behindPhrase(const ReferenceMark &mark, const QString &phrase)
{
    const auto words =
        std::find_if_not(phrase.begin(), phrase.end(), [](QChar c) { return c.isSpace(); });
    return mark.position + (phrase.end() - words);
}

// Replacements of the line itself, none of which reaches over its start.
QString replacedIn(QString line, const QList<Replacement> &replacements)
{
    for (qsizetype i = replacements.size() - 1; i >= 0; --i)
        line.replace(replacements.at(i).position, replacements.at(i).length,
                     replacements.at(i).text);
    return line;
}

QList<Replacement> chosenMend(const ReferenceMark &mark, const QString &line, const QString &phrase)
{
    const QList<Mend> mends = mendsOf(mark, line, {}, phrase);
    const QString entry = referenceEntry(line, phrase);
    const auto leadsThere = std::find_if(mends.begin(), mends.end(), [&](const Mend &mend) {
        return referenceEntry(replacedIn(line, mend.replacements), phrase) == entry;
    });
    if (leadsThere != mends.end())
        return leadsThere->replacements;
    return mends.isEmpty() ? QList<Replacement>() : mends.first().replacements;
}
} // namespace

QList<DoubtfulReference> doubtfulReferences(int n, const QString &text, const QString &phrase)
{
    QList<DoubtfulReference> doubtful;
    for (const ReferenceMark &mark : referenceMarks(text, phrase)) {
        if (mark.doubt == Doubt::None)
            continue;
        const QString words = text.mid(mark.position, mark.length).replace(u'\t', u' ');
        doubtful.append({n, mark, words, isGarbled(mark, text, phrase)});
    }
    return doubtful;
}

QList<DoubtfulReference> doubtfulReferences(const Variables &variables, QList<int> &unreadable)
{
    QList<DoubtfulReference> doubtful;
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n) {
        if (variables.Written.at(n) == 0)
            continue;
        if (const auto text = readablePlainText(variables, n, unreadable))
            doubtful += doubtfulReferences(n, *text, variables.TargetPhrase);
    }
    return doubtful;
}

bool isGarbled(const ReferenceMark &mark, QStringView text, const QString &phrase)
{
    if (mark.read == 0 || mark.doubt == Doubt::None)
        return false;
    const QStringView digits = text.mid(mark.digits, endOfDigits(text, mark.digits) - mark.digits);
    return mark.digits != behindPhrase(mark, phrase) || digits != QString::number(mark.read);
}

QList<Mend> mendsInText(ReferenceMark mark, const QString &text, const QString &phrase)
{
    const qsizetype start = text.lastIndexOf(u'\n', mark.position) + 1;
    const QString line = text.mid(start).section(u'\r', 0, 0);
    const QString previous = text.left(start).chopped(start > 0 ? 2 : 0).section(u'\n', -1);
    mark.position -= start;
    mark.digits -= start;
    QList<Mend> mends = mendsOf(mark, line, previous, phrase);
    for (Mend &mend : mends) {
        for (Replacement &part : mend.replacements) {
            // In a line the break before it is one character, and two in a text.
            if (part.position < 0) {
                part.length += part.position + part.length >= 0 ? 1 : 0;
                --part.position;
            }
            part.position += start;
        }
    }
    return mends;
}

QList<Replacement> mendsOfGarbled(const QString &text, const QString &phrase)
{
    QList<Replacement> replacements;
    for (ReferenceMark mark : referenceMarks(text, phrase)) {
        if (!isGarbled(mark, text, phrase))
            continue;
        const qsizetype start = text.lastIndexOf(u'\n', mark.position) + 1;
        const QString line = text.mid(start).section(u'\r', 0, 0);
        mark.position -= start;
        mark.digits -= start;
        for (const Replacement &mend : chosenMend(mark, line, phrase))
            replacements.append({mend.position + start, mend.length, mend.text});
    }
    return replacements;
}
