#include "check/TextSentences.h"

#include <algorithm>

namespace
{
// Whether a sentence ends at this character. A stop within a number ends none.
bool endsAt(QStringView text, qsizetype at)
{
    const QChar c = text.at(at);
    if (c == u'\n')
        return true;
    if (!QStringView(u".!?…").contains(c))
        return false;
    return at + 1 == text.size() || !text.at(at + 1).isLetterOrNumber();
}

bool isStop(QStringView text, qsizetype at)
{
    return at < text.size() && QStringView(u".!?…").contains(text.at(at));
}
} // namespace

TextPart sentenceAround(QStringView text, TextPart part)
{
    constexpr qsizetype reach = 240; // characters on each side
    qsizetype start = part.position;
    const qsizetype first = std::max<qsizetype>(start - reach, 0);
    while (start > first && !endsAt(text, start - 1))
        --start;
    qsizetype end = part.position + part.length;
    const qsizetype last = std::min(end + reach, text.size());
    while (end < last && !endsAt(text, end))
        ++end;
    while (end < last && isStop(text, end))
        ++end;
    while (start < part.position && text.at(start).isSpace())
        ++start;
    while (end > start && text.at(end - 1).isSpace())
        --end;
    return {start, end - start};
}

TextPart firstSentence(QStringView text)
{
    const auto word =
        std::find_if_not(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
    return sentenceAround(text, {word - text.begin(), 0});
}

// Its stops are its own, and so is what stands behind them on the line.
TextPart lastSentence(QStringView text)
{
    qsizetype end = text.size();
    while (end > 0 && text.at(end - 1).isSpace())
        --end;
    qsizetype words = end;
    while (words > 0 && !text.at(words - 1).isLetterOrNumber())
        --words;
    return sentenceAround(text.first(end), {words, end - words});
}
