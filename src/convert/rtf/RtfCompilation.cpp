#include "convert/rtf/RtfCompilation.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "platform/ScratchFile.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfWriter.h"
#include "store/ParagraphTexts.h"

#include <limits>

namespace
{
// The document is written as it is made, a paragraph of the adventure at a time: each is put
// together in a box of its own, whose last line is where the next one goes on.
class Compilation
{
public:
    Compilation(const Variables &variables, const NumberStyle &style, const QString &path)
        : m_variables(variables), m_style(style), m_file(path, Durability::Full, Links::Follow),
          m_body(path), m_stream(m_part.baseFont())
    {
        m_part.setLimit(std::numeric_limits<qint64>::max()); // a text of any size, and its number
    }

    int run(const ExportRange &range, const Progress &progress)
    {
        const int written =
            forEachWritten(m_variables, range, progress, [this](int n) { append(n); });
        if (!m_unreadable.isEmpty())
            throw UnreadableTexts(m_unreadable);
        write(m_stream.end(*m_part.document()));
        m_file.write(m_stream.header());
        m_body.copyTo(m_file);
        m_file.commit();
        return written;
    }

private:
    void append(int n)
    {
        m_part.setText(QString());
        try {
            const QByteArray rtf = GetParagraphRtf(m_variables, n);
            appendNumber(QString::number(n));
            moveToEnd();
            m_part.setSelRtf(rtf);
        } catch (const UsmiraError &) {
            m_unreadable.append(n);
            return;
        }
        appendEmptyLine();
        write(m_stream.paragraphs(*m_part.document()));
    }

    // Other programs are to read this. One of them, AbiWord 3, forgets the format of the characters
    // in front of "plain" unless another attribute stands between.
    void write(QByteArray rtf) { m_body.write(rtf.replace("\\plain\\f", "\\f0\\plain\\f")); }

    // The style goes onto the line once it has ended, so that the text below has none of it.
    void appendNumber(const QString &digits)
    {
        appendText(digits + QStringLiteral("\r\n"));
        const auto length = static_cast<int>(digits.size());
        m_part.select(m_part.textLength() - length - 2, length);
        m_part.setSelFontName(m_style.fontName);
        m_part.setSelFontSize(m_style.points);
        m_part.setSelBold(m_style.bold);
        m_part.setSelItalic(m_style.italic);
        m_part.setSelUnderline(m_style.underline);
        m_part.setSelAlignment(m_style.centred ? RichTextBox::Alignment::Centre
                                               : RichTextBox::Alignment::Left);
    }

    // A new line goes on in the format of the text above it, which ends here: bullets, indents and
    // colours are none of the next number's.
    void appendEmptyLine()
    {
        appendText(QStringLiteral("\r\n"));
        m_part.setSelPlain();
        appendText(QStringLiteral("\r\n"));
    }

    void appendText(const QString &text)
    {
        moveToEnd();
        m_part.setSelText(text);
    }

    void moveToEnd() { m_part.select(m_part.textLength(), 0); }

    const Variables &m_variables;
    const NumberStyle &m_style;
    SafeFile m_file;
    ScratchFile m_body;
    HiddenBox m_part;
    RtfStream m_stream;
    QList<int> m_unreadable;
};
} // namespace

NumberStyle defaultNumberStyle(const Variables &variables)
{
    return {variables.defaultFontName,
            static_cast<double>(variables.defaultFontSize),
            true,
            false,
            false,
            true};
}

int compileRtf(const Variables &variables, const ExportRange &range, const NumberStyle &style,
               const QString &path, const Progress &progress)
{
    return Compilation(variables, style, path).run(range, progress);
}
