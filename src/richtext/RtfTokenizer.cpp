#include "richtext/RtfTokenizer.h"

#include "platform/Ascii.h"

#include <algorithm>
#include <limits>

namespace
{
constexpr qsizetype longestWord = 32;

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool endsText(char c)
{
    return c == '\\' || c == '{' || c == '}' || c == '\r' || c == '\n';
}
} // namespace

RtfToken RtfTokenizer::next()
{
    while (peek() == '\r' || peek() == '\n')
        ++m_at;
    if (m_at >= m_rtf.size())
        return {};
    RtfToken token;
    switch (peek()) {
    case '{':
        token.kind = RtfToken::Kind::GroupOpen;
        break;
    case '}':
        token.kind = RtfToken::Kind::GroupClose;
        break;
    case '\\':
        return control();
    default:
        return text();
    }
    ++m_at;
    return token;
}

bool RtfTokenizer::skipGroup()
{
    qsizetype depth = 1;
    while (depth > 0) {
        const RtfToken token = next();
        if (token.kind == RtfToken::Kind::End)
            return false;
        if (token.kind == RtfToken::Kind::GroupOpen)
            ++depth;
        else if (token.kind == RtfToken::Kind::GroupClose)
            --depth;
    }
    return true;
}

RtfToken RtfTokenizer::control()
{
    ++m_at;
    if (m_at >= m_rtf.size())
        return {};
    const char c = peek();
    if (isLetter(c))
        return word();
    ++m_at;
    if (c == '\'')
        return hex();
    RtfToken token;
    if (c == '\r' || c == '\n') {
        token.kind = RtfToken::Kind::Word;
        token.bytes = "par";
        return token;
    }
    token.kind = RtfToken::Kind::Symbol;
    token.byte = c;
    return token;
}

RtfToken RtfTokenizer::word()
{
    const qsizetype start = m_at;
    while (isLetter(peek()))
        ++m_at;
    RtfToken token;
    token.kind = RtfToken::Kind::Word;
    token.bytes = m_rtf.sliced(start, std::min(m_at - start, longestWord));
    number(token);
    if (peek() == ' ')
        ++m_at;
    if (!token.isWord("bin"))
        return token;
    const qsizetype size = std::clamp<qsizetype>(token.number, 0, m_rtf.size() - m_at);
    token.kind = RtfToken::Kind::Binary;
    token.bytes = m_rtf.sliced(m_at, size);
    m_at += size;
    return token;
}

void RtfTokenizer::number(RtfToken &token)
{
    const bool negative = peek() == '-' && m_at + 1 < m_rtf.size() && isDigit(m_rtf[m_at + 1]);
    if (negative)
        ++m_at;
    constexpr qint64 limit = std::numeric_limits<int>::max();
    qint64 value = 0;
    for (; isDigit(peek()); ++m_at) {
        token.hasNumber = true;
        value = std::min(limit, value * 10 + (peek() - '0'));
    }
    token.number = static_cast<int>(negative ? -value : value);
}

RtfToken RtfTokenizer::hex()
{
    RtfToken token;
    token.kind = RtfToken::Kind::Symbol;
    token.byte = '\'';
    if (m_rtf.size() - m_at < 2)
        return token;
    const int high = hexadecimalValue(m_rtf[m_at]);
    const int low = hexadecimalValue(m_rtf[m_at + 1]);
    if (high < 0 || low < 0)
        return token;
    m_at += 2;
    token.kind = RtfToken::Kind::Hex;
    token.byte = static_cast<char>(high * 16 + low);
    return token;
}

RtfToken RtfTokenizer::text()
{
    const auto *from = m_rtf.begin() + m_at;
    const auto *to = std::find_if(from, m_rtf.end(), endsText);
    RtfToken token;
    token.kind = RtfToken::Kind::Text;
    token.bytes = QByteArrayView(from, to);
    m_at += to - from;
    return token;
}

bool isWholeRtf(QByteArrayView rtf)
{
    RtfTokenizer tokenizer(rtf);
    return tokenizer.next().kind == RtfToken::Kind::GroupOpen && tokenizer.skipGroup();
}
