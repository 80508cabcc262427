#include "convert/rtf/RtfCompilation.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "richtext/HiddenBox.h"
#include "store/ParagraphStore.h"

namespace
{
class Compilation
{
public:
    Compilation(const Variables &variables, const NumberStyle &style)
        : m_variables(variables), m_style(style)
    {
        m_assembly.setText(QString());
    }

    int run(const ExportRange &range, const Progress &progress)
    {
        const int written =
            forEachWritten(m_variables, range, progress, [this](int n) { append(n); });
        if (!m_unreadable.isEmpty())
            throw UnreadableTexts(m_unreadable);
        return written;
    }

    // Other programs are to read this. One of them, AbiWord 3, forgets the format of the characters
    // in front of "plain" unless another attribute stands between.
    void save(const QString &path) const
    {
        const QByteArray rtf = m_assembly.rtf().replace("\\plain\\f", "\\f0\\plain\\f");
        writeWholeFile(path, rtf, Durability::Full, Links::Follow);
    }

private:
    void append(int n)
    {
        try {
            const QByteArray rtf = GetParagraphRtf(m_variables, n);
            appendNumber(QString::number(n));
            moveToEnd();
            m_assembly.setSelRtf(rtf);
            appendEmptyLine();
        } catch (const UsmiraError &) {
            m_unreadable.append(n);
        }
    }

    // The style goes onto the line once it has ended, so that the text below has none of it.
    void appendNumber(const QString &digits)
    {
        appendText(digits + QStringLiteral("\r\n"));
        const auto length = static_cast<int>(digits.size());
        m_assembly.select(m_assembly.textLength() - length - 2, length);
        m_assembly.setSelFontName(m_style.fontName);
        m_assembly.setSelFontSize(m_style.points);
        m_assembly.setSelBold(m_style.bold);
        m_assembly.setSelItalic(m_style.italic);
        m_assembly.setSelUnderline(m_style.underline);
        m_assembly.setSelAlignment(m_style.centred ? RichTextBox::Alignment::Centre
                                                   : RichTextBox::Alignment::Left);
    }

    // A new line goes on in the format of the text above it, which ends here: bullets, indents and
    // colours are none of the next number's.
    void appendEmptyLine()
    {
        appendText(QStringLiteral("\r\n"));
        m_assembly.setSelPlain();
        appendText(QStringLiteral("\r\n"));
    }

    void appendText(const QString &text)
    {
        moveToEnd();
        m_assembly.setSelText(text);
    }

    void moveToEnd() { m_assembly.select(m_assembly.textLength(), 0); }

    const Variables &m_variables;
    const NumberStyle &m_style;
    HiddenBox m_assembly;
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
    Compilation compilation(variables, style);
    const int written = compilation.run(range, progress);
    compilation.save(path);
    return written;
}
