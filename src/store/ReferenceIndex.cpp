#include "store/ReferenceIndex.h"

#include "platform/Ascii.h"
#include "platform/Errors.h"
#include "richtext/RtfPlainText.h"
#include "store/LenientNumbers.h"
#include "store/ParagraphTexts.h"

namespace
{
// A reference's number is read from this many characters, no more: required, since authors rely on
// what follows never joining a number.
constexpr qsizetype NumberCharacters = 5;

double numberAt(QStringView text, qsizetype position)
{
    return lenientNumber(text.mid(position, NumberCharacters));
}
} // namespace

std::optional<Reference> nextReference(QStringView text, const QString &phrase, qsizetype from)
{
    if (phrase.isEmpty())
        return std::nullopt;
    qsizetype found = text.indexOf(phrase, from, Qt::CaseInsensitive);
    while (found >= 0) {
        const qsizetype behind = found + phrase.size();
        const double number = numberAt(text, behind);
        if (number >= 1 && number <= Variables::LastParagraph)
            return Reference{behind, number};
        found = text.indexOf(phrase, behind, Qt::CaseInsensitive);
    }
    return std::nullopt;
}

QString referenceEntry(QStringView text, const QString &phrase)
{
    QString entry;
    qsizetype from = 0;
    while (const std::optional<Reference> reference = nextReference(text, phrase, from)) {
        entry += fourDigits(roundHalfAway(reference->number)) + u'/';
        from = reference->position;
    }
    return entry;
}

void ScanReferences(Variables &variables, QStringView text, int n)
{
    variables.refIndex.at(n) = referenceEntry(text, variables.TargetPhrase);
}

void RebuildReferenceIndex(Variables &variables, const Progress &progress)
{
    const int total = variables.HighestWritten - variables.LowestWritten + 1;
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n) {
        if (variables.Written.at(n) == 0)
            continue;
        QString text;
        try {
            text = rtfToPlainText(GetParagraphRtf(variables, n));
        } catch (const UsmiraError &) {
            text.clear();
        }
        ScanReferences(variables, text, n);
        progress(n - variables.LowestWritten + 1, total);
    }
}

std::optional<int> indexedNumber(const QString &indexEntry, qsizetype position)
{
    bool ok = false;
    const int number = QStringView(indexEntry).mid(position, IndexEntryLength - 1).toInt(&ok);
    if (!ok || number < 0 || number > Variables::LastParagraph)
        return std::nullopt;
    return number;
}

QList<int> referredParagraphs(const QString &indexEntry)
{
    QList<int> numbers;
    for (qsizetype at = 0; at + IndexEntryLength <= indexEntry.size(); at += IndexEntryLength)
        if (const std::optional<int> number = indexedNumber(indexEntry, at))
            numbers.append(*number);
    return numbers;
}

QList<int> incomingParagraphs(const Variables &variables, int n)
{
    QList<int> incoming;
    const QString key = fourDigits(n);
    for (int from = variables.LowestWritten; from <= variables.HighestWritten; ++from) {
        if (variables.Written.at(from) == 1 && variables.refIndex.at(from).contains(key))
            incoming.append(from);
    }
    return incoming;
}

int numberAround(QStringView text, qsizetype caret)
{
    if (caret < 0 || caret >= text.size())
        return 0;
    qsizetype before = caret;
    while (before > 0 && isAsciiDigit(text.at(before)))
        --before;
    return roundHalfEven(numberAt(text, before + 1));
}
