#include "convert/html/HtmlLosses.h"

#include "convert/html/EditorLayout.h"
#include "convert/html/HtmlPass.h"
#include "platform/Errors.h"
#include "richtext/RtfReader.h"

#include <optional>

namespace
{
// What is seen of a text, as the pass gives it.
class SeenText : public RtfHandler
{
public:
    void text(QStringView text, const CharState & /*state*/) override { m_paragraph += text; }

    void paragraphEnd(const ParagraphState &state, const CharState & /*chars*/) override
    {
        if (state.bullet)
            m_text += QStringLiteral("\u2022 ");
        m_text += m_paragraph + u'\n';
        m_paragraph.clear();
    }

    QByteArray bytes() const { return toHtmlBytes(m_text); }

private:
    QString m_text;
    QString m_paragraph;
};

std::optional<QByteArray> textOfReader(QByteArrayView rtf)
{
    try {
        SeenText text;
        RtfReader(rtf).read(text);
        return text.bytes();
    } catch (const FormatError &) {
        return {};
    }
}

std::optional<QByteArray> textOfPass(QByteArrayView rtf)
{
    try {
        return HtmlPass(rtf, HtmlPass::Gives::TextAlone).convert();
    } catch (const FormatError &) {
        return {};
    }
}

bool isBlank(char c)
{
    constexpr uchar noBreakSpace = 0xa0;
    const auto code = static_cast<uchar>(c);
    return code <= ' ' || code == noBreakSpace;
}

// The words with one blank between them.
QByteArray words(QByteArrayView text)
{
    QByteArray words;
    bool isApart = false;
    for (const char c : text) {
        if (isBlank(c)) {
            isApart = !words.isEmpty();
            continue;
        }
        if (isApart)
            words += ' ';
        isApart = false;
        words += c;
    }
    return words;
}
} // namespace

bool losesInHtml(QByteArrayView rtf)
{
    if (rtf.isEmpty() || isInEditorLayout(rtf))
        return false;
    const std::optional<QByteArray> whole = textOfReader(rtf);
    if (!whole)
        return false;
    const std::optional<QByteArray> given = textOfPass(rtf);
    return !given || words(*given) != words(*whole);
}
