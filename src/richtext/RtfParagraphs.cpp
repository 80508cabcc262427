#include "richtext/RtfParagraphs.h"

void RtfParagraphs::addText(QStringView text, const RtfState &state)
{
    while (!text.isEmpty()) {
        const qsizetype behind = text.indexOf(u'\n');
        const QStringView part = behind < 0 ? text : text.first(behind);
        if (!part.isEmpty()) {
            m_handler.text(part, state.chars);
            m_hasText = true;
            m_last = state;
        }
        if (behind < 0)
            return;
        end(state);
        text = text.sliced(behind + 1);
    }
}

void RtfParagraphs::addLabel(RtfListLabel label)
{
    m_bulletLabel = m_bulletLabel || label == RtfListLabel::Bullet;
    m_numberLabel = m_numberLabel || label == RtfListLabel::Number;
}

void RtfParagraphs::end(const RtfState &state)
{
    ParagraphState paragraph = state.paragraph;
    paragraph.bullet = !m_numberLabel && (paragraph.bullet || m_bulletLabel);
    paragraph.settleBullet();
    m_handler.paragraphEnd(paragraph, state.chars);
    m_anyEnded = true;
    m_hasText = false;
    m_bulletLabel = false;
    m_numberLabel = false;
}

void RtfParagraphs::finish(const RtfState &state)
{
    if (m_hasText || !m_anyEnded)
        end(m_hasText ? m_last : state);
}
