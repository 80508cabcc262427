#include "convert/html/HtmlPass.h"

#include "platform/Ascii.h"
#include "platform/Errors.h"

#include <QChar>
#include <algorithm>

namespace
{
// A run that stands for text, as HTML and as plain text.
struct Sign {
    QByteArrayView run;
    QByteArrayView html;
    QByteArrayView text;
};

// They leave the styles alone, and so must be nothing else: "\par\pard" is none of them.
constexpr QByteArrayView LineEnd = "\\par";
constexpr std::array<Sign, 5> Signs{{
    {LineEnd, "<BR>", "\n"},
    {"\\tab", "&nbsp; &nbsp; &nbsp;", "\t"},
    {"\\bullet", "&#149;", "\x95"},
    {"\\endash", "&#150;", "\x96"},
    {"\\emdash", "&#151;", "\x97"},
}};

constexpr QByteArrayView BulletHtml = "&#149;&nbsp;";
constexpr QByteArrayView BulletText = "\x95 ";

// The character of a run that is \uN and nothing more. N is a signed 16-bit number; what some
// programs write above that is taken for the character's own number.
std::optional<char32_t> unicodeCharacter(QByteArrayView run)
{
    if (!run.startsWith("\\u"))
        return {};
    const QByteArrayView number = run.sliced(2);
    const QByteArrayView digits = number.sliced(number.startsWith('-') ? 1 : 0);
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isDigit))
        return {};
    bool ok = false;
    const int value = number.toInt(&ok);
    if (!ok)
        return QChar::ReplacementCharacter;
    return static_cast<char32_t>(value < 0 ? value + 0x10000 : value);
}
} // namespace

QByteArray HtmlPass::convert()
{
    if (m_rtf.isEmpty())
        return {};
    m_html.reserve(m_rtf.size());
    m_at = bodyStart();
    // Nothing begins at the last byte: it is the brace that closes the document.
    while (m_at < m_rtf.size() - 1) {
        const qsizetype backslash = m_rtf.indexOf('\\', m_at);
        if (backslash < 0) {
            takeLastText();
            break;
        }
        m_html.append(m_rtf.sliced(m_at, backslash - m_at));
        m_at = backslash;
        takeControl();
    }
    for (const Style &style : m_styles) {
        if (style.isOpen)
            append(style.end);
    }
    closeFont();
    return m_html.bytes();
}

void HtmlPass::append(QByteArrayView html, QByteArrayView text)
{
    m_html.append(m_gives == Gives::Html ? html : text);
}

// The first backslash behind the last brace but one, which closes the last table.
qsizetype HtmlPass::bodyStart() const
{
    const qsizetype last = m_rtf.lastIndexOf('}');
    const qsizetype table = last < 1 ? -1 : m_rtf.lastIndexOf('}', last - 1);
    const qsizetype start = m_rtf.indexOf('\\', std::max<qsizetype>(table, 0));
    if (start < 0)
        throw FormatError(table + 1, QStringLiteral("a control word of the body"));
    return start;
}

void HtmlPass::takeLastText()
{
    const qsizetype brace = m_rtf.indexOf('}', m_at);
    if (brace < 0)
        throw FormatError(m_at, QStringLiteral("a brace behind the last text"));
    m_html.append(m_rtf.sliced(m_at, brace - m_at));
}

void HtmlPass::takeControl()
{
    const QByteArrayView rest = m_rtf.sliced(m_at + 1);
    if (rest.startsWith('\'')) {
        takeHexadecimal();
    } else if (rest.startsWith('~')) {
        append("&nbsp;", "\xa0");
        m_at += 2;
    } else {
        takeRun();
    }
}

// The code goes out as it is, of Windows-1252: browsers read 128 to 159 so. It always has three
// digits. What is read ends at the first character that is no digit.
void HtmlPass::takeHexadecimal()
{
    int code = 0;
    const qsizetype end = std::min(m_at + 4, m_rtf.size());
    for (qsizetype at = m_at + 2; at < end; ++at) {
        const int value = hexadecimalValue(m_rtf.at(at));
        if (value < 0)
            break;
        code = code * 16 + value;
    }
    const auto digit = [code](int unit) { return static_cast<char>('0' + code / unit % 10); };
    const std::array entity{'&', '#', digit(100), digit(10), digit(1), ';'};
    const std::array byte{static_cast<char>(code)};
    append(entity, byte);
    m_at += 4;
}

std::optional<QByteArrayView> HtmlPass::runAt(qsizetype from) const
{
    const qsizetype space = m_rtf.indexOf(' ', from);
    if (space < 0)
        return {};
    return m_rtf.sliced(from, space - from);
}

void HtmlPass::takeRun()
{
    const std::optional<QByteArrayView> run = runAt(m_at);
    if (!run)
        throw FormatError(m_at, QStringLiteral("a space behind the control run"));
    m_at += run->size() + 1;
    const auto sign = std::find_if(Signs.begin(), Signs.end(),
                                   [&run](const Sign &entry) { return entry.run == *run; });
    if (sign != Signs.end())
        takeSign(sign->html, sign->text, *run == LineEnd);
    else if (const std::optional<char32_t> character = unicodeCharacter(*run))
        takeCharacter(*character);
    else
        applyRun(*run);
}

void HtmlPass::takeSign(QByteArrayView html, QByteArrayView text, bool isLineEnd)
{
    append(html, text);
    const QByteArrayView rest = m_rtf.sliced(m_at);
    if (isLineEnd && m_bullet && !rest.startsWith('}') && !rest.startsWith("\\pard"))
        append(BulletHtml, BulletText);
}

// A character outside Windows-1252. Unlike every other run this one is text and closes no style.
void HtmlPass::takeCharacter(char32_t character)
{
    skipFallback();
    if (QChar::isHighSurrogate(character)) {
        if (const std::optional<char32_t> low = takeLowSurrogate())
            character = QChar::surrogateToUcs4(static_cast<char16_t>(character),
                                               static_cast<char16_t>(*low));
    }
    m_html.append(m_gives == Gives::Html ? numericEntity(character)
                                         : toHtmlBytes(QString::fromUcs4(&character, 1)));
}

// The other half of a character, when it follows at once; else nothing is taken.
std::optional<char32_t> HtmlPass::takeLowSurrogate()
{
    if (!m_rtf.sliced(m_at).startsWith('\\'))
        return {};
    const std::optional<QByteArrayView> run = runAt(m_at);
    const std::optional<char32_t> low = run ? unicodeCharacter(*run) : std::nullopt;
    if (!low || !QChar::isLowSurrogate(*low))
        return {};
    m_at += run->size() + 1;
    skipFallback();
    return low;
}

// The one character that stands behind \uN for readers that do not know it. A control run, a brace
// or a line end there is none.
void HtmlPass::skipFallback()
{
    const QByteArrayView rest = m_rtf.sliced(m_at);
    if (rest.startsWith("\\'"))
        m_at = std::min(m_at + 4, m_rtf.size());
    else if (!rest.isEmpty() && !QByteArrayView("\\{}\r\n").contains(rest.front()))
        ++m_at;
}

// The order of the tests is the order of the tags. They look for characters anywhere in the run:
// "\b0" is bold, and only a run without any "\b" closes bold. Required, as the whole HTML is.
void HtmlPass::applyRun(QByteArrayView run)
{
    for (Style &style : m_styles) {
        const bool has = run.contains(style.word);
        if (has != style.isOpen)
            append(has ? style.start : style.end);
        style.isOpen = has;
    }
    applyColour(run);
    applyAlignment(run);
    if (run.contains("\\pard"))
        startParagraphs(hasBullet(run));
}

// What \pard says holds for the paragraphs that follow as well, up to the next one.
void HtmlPass::startParagraphs(bool bullet)
{
    m_bullet = bullet;
    if (bullet)
        append(BulletHtml, BulletText);
}

void HtmlPass::applyColour(QByteArrayView run)
{
    constexpr QByteArrayView word = "\\cf";
    const qsizetype found = run.indexOf(word);
    if (found >= 0) {
        closeFont();
        const QByteArray hex = m_colours.hexOf(run.sliced(found + word.size()));
        append("<FONT COLOR=\"#" + hex + "\">");
        m_fontOpen = true;
    } else if (run.startsWith("\\plain")) {
        closeFont();
    }
}

// No paragraph is ever closed: browsers do so at the next one.
void HtmlPass::applyAlignment(QByteArrayView run)
{
    if (run.contains("\\qc"))
        append("<P ALIGN=\"Center\">", "\n");
    if (run.contains("\\qr"))
        append("<P ALIGN=\"Right\">", "\n");
    if (run.contains("\\pard") && !run.contains("\\q"))
        append("<P ALIGN=\"Left\">", "\n");
}

void HtmlPass::closeFont()
{
    if (m_fontOpen)
        append("</FONT>");
    m_fontOpen = false;
}

bool hasBullet(QByteArrayView run)
{
    return run.contains("\\pard") && run.endsWith("\\ls1");
}
