#include "language/spelling/SpellingWords.h"

#include <algorithm>

namespace
{
constexpr qsizetype FarFromChange = 256; // characters in which a blank is looked for

bool isApostrophe(QChar c)
{
    return c == u'\'' || c == u'\u2019' || c == u'\u02BC';
}

bool isHyphen(QChar c)
{
    return c == u'-' || c == u'\u2010' || c == u'\u2011';
}

// Soft hyphens, and what joins or parts letters without being seen.
bool isUnseen(QChar c)
{
    return c == u'\u00AD' || (c >= u'\u200B' && c <= u'\u200D') || c == u'\u2060';
}

bool isOfWord(QChar c)
{
    return (c.isLetterOrNumber() && c != u'\u02BC') || c.isMark();
}

bool isBlank(QChar c)
{
    return c.isSpace() || c == u'\u202F';
}

bool joins(QChar c)
{
    return isApostrophe(c) || isHyphen(c);
}

qsizetype endOfWord(QStringView text, qsizetype at)
{
    qsizetype end = at;
    for (; at < text.size(); ++at) {
        const QChar c = text.at(at);
        const bool joined =
            joins(c) && end == at && at + 1 < text.size() && isOfWord(text.at(at + 1));
        if (!isOfWord(c) && !isUnseen(c) && !joined)
            break;
        if (isOfWord(c))
            end = at + 1;
    }
    return end;
}

bool isAddress(QStringView run)
{
    const qsizetype at = run.indexOf(u'@');
    return run.contains(QLatin1String("://")) || run.startsWith(QLatin1String("www.")) ||
           (at > 0 && at + 1 < run.size() && run.at(at - 1).isLetterOrNumber() &&
            run.at(at + 1).isLetterOrNumber());
}

// The length of an "&eacute;" or "&#233;", or 0.
qsizetype entityLength(QStringView text, qsizetype at)
{
    constexpr qsizetype longest = 32;
    qsizetype end = at + 1;
    while (end < text.size() && end - at < longest &&
           (text.at(end).isLetterOrNumber() || text.at(end) == u'#'))
        ++end;
    return end > at + 1 && end < text.size() && text.at(end) == u';' ? end + 1 - at : 0;
}

// The length of the code that begins at a '<', or 0: "5 < 6" is none.
qsizetype codeLength(QStringView text, qsizetype at)
{
    if (at + 1 >= text.size())
        return 0;
    const QChar next = text.at(at + 1);
    if (!next.isLetter() && next != u'/' && next != u'!' && next != u'?')
        return 0;
    for (qsizetype end = at + 1; end < text.size(); ++end) {
        const QChar c = text.at(end);
        if (c == u'>')
            return end + 1 - at;
        if (c == u'<' || c == u'\n' || c == u'\r' || c == QChar::ParagraphSeparator)
            break;
    }
    return 0;
}

// The words between two blanks or pieces of code.
void addWords(QStringView text, qsizetype begin, qsizetype end, QList<SpellingWord> &words)
{
    if (isAddress(text.mid(begin, end - begin)))
        return;
    const QStringView run = text.first(end);
    for (qsizetype at = begin; at < end;) {
        if (!isOfWord(run.at(at)) || run.at(at).isMark()) {
            ++at;
            continue;
        }
        const qsizetype last = endOfWord(run, at);
        const QStringView word = run.mid(at, last - at);
        if (std::any_of(word.begin(), word.end(), [](QChar c) { return c.isLetter(); }))
            words.append({at, word.size(), spellingForm(word)});
        at = last;
    }
}

// What is no part of a word, for texts in which there are no blanks.
bool parts(QChar c)
{
    return c == u',' || c == u'!' || c == u'(' || c == u')' || c == u'\u2026';
}

// The code that a place lies within, or the place alone.
TextRange codeOver(QStringView line, qsizetype place)
{
    const qsizetype code = place == 0 ? -1 : line.lastIndexOf(u'<', place - 1);
    const qsizetype length = code < 0 ? 0 : codeLength(line, code);
    return code + length > place && length > 0 ? TextRange{code, code + length}
                                               : TextRange{place, place};
}

bool endsRange(QChar c, qsizetype distance)
{
    return isBlank(c) || (distance > FarFromChange && parts(c));
}
} // namespace

QString spellingForm(QStringView word)
{
    QString form;
    form.reserve(word.size());
    bool composed = true;
    for (const QChar c : word) {
        if (isUnseen(c))
            continue;
        composed = composed && !c.isMark();
        form += isApostrophe(c) ? QChar(u'\'') : isHyphen(c) ? QChar(u'-') : c;
    }
    return composed ? form : form.normalized(QString::NormalizationForm_C);
}

WordsAndCode spellingWords(QStringView text)
{
    WordsAndCode found;
    qsizetype begin = 0;
    qsizetype at = 0;
    const auto endRun = [&] {
        if (at > begin)
            addWords(text, begin, at, found.words);
    };
    while (at < text.size()) {
        const QChar c = text.at(at);
        const qsizetype code = c == u'<' ? codeLength(text, at) : 0;
        const qsizetype passed = c == u'&' ? entityLength(text, at) : code;
        if (passed == 0 && !isBlank(c)) {
            ++at;
            continue;
        }
        endRun();
        if (code > 0)
            found.code.append({at, code});
        at += std::max<qsizetype>(passed, 1);
        begin = at;
    }
    endRun();
    return found;
}

TextRange wordsAround(QStringView line, TextRange changed)
{
    qsizetype begin = std::clamp<qsizetype>(changed.begin, 0, line.size());
    qsizetype end = std::clamp<qsizetype>(changed.end, begin, line.size());
    for (;;) {
        while (begin > 0 && !endsRange(line.at(begin - 1), changed.begin - begin))
            --begin;
        while (end < line.size() && !endsRange(line.at(end), end - changed.end))
            ++end;
        const TextRange first = codeOver(line, begin);
        const TextRange last = codeOver(line, end);
        if (first.begin == begin && last.end == end)
            return {begin, end};
        begin = first.begin; // words may touch the code
        end = last.end;
    }
}
