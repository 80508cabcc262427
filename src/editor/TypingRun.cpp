#include "editor/TypingRun.h"

bool TypingRun::begins(const QString &text, int position, quint64 when)
{
    constexpr qsizetype longest = 20;
    constexpr quint64 pause = 1000;
    const bool blank = text.back().isSpace();
    const bool continues = m_length > 0 && m_length < longest && position == m_behind &&
                           when - m_when < pause && (blank || !m_wordEnded);
    m_length = continues ? m_length + text.size() : text.size();
    m_behind = position + text.size();
    m_when = when;
    m_wordEnded = blank;
    return !continues;
}
