#include "editor/VisitedTexts.h"

#include <algorithm>

namespace
{
qint64 memoryOf(const VisitedText &text)
{
    return text.rtf.size() + (text.document ? text.document->memory() : 0);
}
} // namespace

void VisitedTexts::leave(int n, VisitedText text)
{
    const qint64 bytes = memoryOf(text);
    m_texts.remove_if([n](const Entry &entry) { return entry.number == n; });
    if (bytes > MostBytes)
        return;
    m_texts.push_front({n, bytes, std::move(text)});
    forgetOldest();
}

void VisitedTexts::forgetOldest()
{
    qint64 bytes = 0;
    std::size_t count = 0;
    const auto first = std::find_if(m_texts.begin(), m_texts.end(), [&](const Entry &entry) {
        bytes += entry.bytes;
        return ++count > Most || bytes > MostBytes;
    });
    m_texts.erase(first, m_texts.end());
}

std::optional<VisitedText> VisitedTexts::comeTo(int n, const QByteArray &rtf)
{
    const auto entry = std::find_if(m_texts.begin(), m_texts.end(),
                                    [n](const Entry &text) { return text.number == n; });
    if (entry == m_texts.end())
        return std::nullopt;
    VisitedText text = std::move(entry->text);
    m_texts.erase(entry);
    return text.rtf == rtf ? std::optional(std::move(text)) : std::nullopt;
}

void VisitedTexts::renumber(const ParagraphArray<qint16, 2001> &newNumbers)
{
    for (Entry &entry : m_texts)
        entry.number = numberAfter(entry.number, newNumbers);
    m_texts.remove_if([](const Entry &entry) { return entry.number < 0; });
}

int numberAfter(int n, const ParagraphArray<qint16, 2001> &newNumbers)
{
    if (newNumbers.at(n) != n)
        return newNumbers.at(n);
    return std::count(newNumbers.begin(), newNumbers.end(), static_cast<qint16>(n)) == 1 ? n : -1;
}
