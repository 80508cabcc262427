#include "convert/rtf/RtfCompilation.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "platform/ScratchFile.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfWriter.h"
#include "store/ParagraphTexts.h"
#include "store/references/ReferenceMarks.h"

#include <QTextBlock>
#include <limits>

namespace
{
// The document is written as it is made, a paragraph of the adventure at a time: each is put
// together in a box of its own, whose last line is where the next one goes on.
class Compilation
{
public:
    Compilation(const Variables &variables, const NumberStyle &style, RtfLinks links,
                const QString &path)
        : m_variables(variables), m_style(style), m_links(links),
          m_file(path, Durability::Full, Links::Follow), m_body(path), m_stream(m_part.baseFont())
    {
        m_part.setLimit(std::numeric_limits<qint64>::max()); // a text of any size, and its number
    }

    int run(const ExportRange &range, const Progress &progress)
    {
        m_range = range;
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
        write(m_stream.paragraphs(*m_part.document(),
                                  m_links == RtfLinks::With ? marks(n) : QList<RtfMark>()));
    }

    // The first line is the number.
    QList<RtfMark> marks(int n) const
    {
        QTextBlock block = m_part.document()->firstBlock();
        QList<RtfMark> found{{RtfMark::Kind::Bookmark, 0, block.length() - 1, bookmark(n)}};
        for (block = block.next(); block.isValid(); block = block.next()) {
            LineReferences references;
            references.read(block.text(), {}, m_variables.TargetPhrase);
            for (const ReferenceMark &mark : references.marks())
                if (isInDocument(mark.read))
                    found.append({RtfMark::Kind::Link,
                                  block.position() + static_cast<int>(mark.digits),
                                  block.position() + static_cast<int>(mark.position + mark.length),
                                  bookmark(mark.read)});
        }
        return found;
    }

    bool isInDocument(int n) const
    {
        return n > 0 && n >= m_range.low && n <= m_range.high && m_variables.Written.at(n) == 1;
    }

    static QByteArray bookmark(int n) { return "P" + fourDigits(n).toLatin1(); }

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
    RtfLinks m_links;
    ExportRange m_range{0, 0};
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
               RtfLinks links, const QString &path, const Progress &progress)
{
    return Compilation(variables, style, links, path).run(range, progress);
}
