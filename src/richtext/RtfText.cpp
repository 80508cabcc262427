#include "richtext/RtfText.h"

#include "richtext/TextCleaning.h"

#include <utility>

void RtfText::addCharacter(QChar character, int page)
{
    decode(page);
    m_text += character;
}

QString RtfText::take(int page)
{
    decode(page);
    if (m_text.isEmpty())
        return {};
    const bool half = m_text.back().isHighSurrogate();
    QString text = cleanedText(QStringView(m_text).chopped(half ? 1 : 0));
    m_text = half ? m_text.right(1) : QString();
    return text;
}

QString RtfText::takeLast()
{
    return cleanedText(std::exchange(m_text, QString()));
}

void RtfText::decode(int page)
{
    if (m_bytes.isEmpty())
        return;
    m_text += m_codePage.decode(m_bytes, page);
    m_bytes.clear();
}
