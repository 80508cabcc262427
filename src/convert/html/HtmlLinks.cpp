#include "convert/html/HtmlLinks.h"

#include "platform/Ascii.h"

#include <algorithm>

namespace
{
constexpr qsizetype NumberDigits = 4;

void appendTimes(HtmlText &html, QByteArrayView piece, int times)
{
    for (int i = 0; i < times; ++i)
        html.append(piece);
}
} // namespace

HtmlLinks::HtmlLinks(const QByteArray &phrase, const QList<int> &numbers, const LinkForm &form)
    : m_phrase(phrase.toStdString()), m_form(form)
{
    for (const int number : numbers)
        ++m_times.at(number);
}

QByteArray HtmlLinks::apply(QByteArrayView html)
{
    m_html.reserve(html.size());
    m_visible.reserve(static_cast<std::size_t>(html.size()));
    auto at = html.begin();
    while (at != html.end()) {
        const auto digits = std::find_if(at, html.end(), isDigit);
        takeText(QByteArrayView(at, digits));
        at = std::find_if_not(digits, html.end(), isDigit);
        takeDigits(QByteArrayView(digits, at));
    }
    return m_html.bytes();
}

void HtmlLinks::takeText(QByteArrayView text)
{
    m_html.append(text);
    for (const char c : text) {
        if (c == '>') {
            m_visible.resize(m_beforeTag);
            continue;
        }
        if (c == '<')
            m_beforeTag = m_visible.size();
        m_visible += c;
    }
}

// A number is followed by no digit, so that only the last digits of a row can be one. The phrase
// may itself end in digits: then more than one number can begin here, each within the one before.
void HtmlLinks::takeDigits(QByteArrayView digits)
{
    const qsizetype first = std::max<qsizetype>(digits.size() - NumberDigits, 0);
    takeText(digits.first(first));
    int links = 0;
    for (qsizetype at = first; at < digits.size(); ++at) {
        const QByteArrayView number = digits.sliced(at);
        const int times = isBehindPhrase() ? timesListed(number) : 0;
        if (times > 0) {
            const QByteArray padded = number.toByteArray().rightJustified(NumberDigits, '0');
            appendTimes(m_html, m_form.start + padded + m_form.end, times);
            links += times;
        }
        takeText(number.first(1));
    }
    appendTimes(m_html, "</A>", links);
    if (links > 0)
        m_beforeTag = m_visible.size();
}

// 0 for what does not read as the number is written in the text: "0026" is not 26.
int HtmlLinks::timesListed(QByteArrayView number) const
{
    if (number.size() > 1 && number.front() == '0')
        return 0;
    const int value = number.toInt();
    return value < m_times.count() ? m_times.at(value) : 0;
}

bool HtmlLinks::isBehindPhrase() const
{
    return m_visible.ends_with(m_phrase);
}
