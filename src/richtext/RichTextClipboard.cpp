#include "richtext/RichTextClipboard.h"

#include "platform/Errors.h"
#include "richtext/DocumentBuilder.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"
#include "richtext/RtfWriter.h"
#include "richtext/TextCleaning.h"
#include "richtext/TextLimit.h"

#include <QMimeData>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <array>

namespace
{
constexpr std::array rtfTypes = {"text/rtf", "application/rtf", "text/richtext"};

// A document that looks nothing up: neither on the disk nor elsewhere.
class SealedDocument : public QTextDocument
{
protected:
    QVariant loadResource(int, const QUrl &) override { return QByteArray(); }
};

struct Cell {
    const QTextTable *table = nullptr;
    int row = 0;
    int column = 0;
};

Cell cellOf(const QTextBlock &block)
{
    const QTextCursor cursor(block);
    const QTextTable *table = cursor.currentTable();
    if (table == nullptr)
        return {};
    const QTextTableCell cell = table->cellAt(cursor);
    return {table, cell.row(), cell.column()};
}

// Goes through the paragraphs of a document, tables flattened, and hands them to a builder.
class Flattener
{
public:
    Flattener(DocumentBuilder &builder, const QFont &base) : m_builder(builder), m_base(base) {}

    void flatten(const QTextDocument &document)
    {
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            addBlock(block);
        if (m_open)
            endParagraph();
    }

private:
    void addBlock(const QTextBlock &block);
    void addRuns(const QTextBlock &block);
    void endParagraph();

    DocumentBuilder &m_builder;
    QFont m_base;
    Cell m_cell; // of the block before
    bool m_open = false;
    ParagraphState m_state;
    CharState m_chars;
};

void Flattener::addBlock(const QTextBlock &block)
{
    const Cell cell = cellOf(block);
    const bool sameRow =
        cell.table != nullptr && cell.table == m_cell.table && cell.row == m_cell.row;
    // Around a table stand paragraphs that nobody wrote.
    const bool padding = block.length() == 1 && cell.table == nullptr &&
                         (m_cell.table != nullptr ||
                          (block.next().isValid() && cellOf(block.next()).table != nullptr));
    if (sameRow) {
        m_builder.text(cell.column != m_cell.column ? u"\t" : u" ", m_chars);
    } else if (m_open && !padding) {
        endParagraph();
    }
    m_cell = cell;
    if (padding)
        return;
    m_open = true;
    m_state = ParagraphState::of(block);
    m_chars = CharState::of(block.charFormat(), m_base);
    const QTextList *list = block.textList();
    if (list != nullptr && list->format().style() <= QTextListFormat::ListDecimal) {
        m_state.bullet = false;
        m_builder.text(list->itemText(block) + u'\t', m_chars);
    }
    addRuns(block);
}

void Flattener::addRuns(const QTextBlock &block)
{
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        m_chars = CharState::of(fragment.charFormat(), m_base);
        QString text = cleanedText(fragment.text());
        if (m_cell.table != nullptr)
            text.replace(u'\n', u' ');
        for (qsizetype end = text.indexOf(u'\n'); end >= 0; end = text.indexOf(u'\n')) {
            m_builder.text(text.left(end), m_chars);
            m_builder.paragraphEnd(m_state, m_chars);
            text.remove(0, end + 1);
        }
        m_builder.text(text, m_chars);
    }
}

void Flattener::endParagraph()
{
    m_builder.paragraphEnd(m_state, m_chars);
    m_open = false;
}

QByteArray rtfOf(const QMimeData &data)
{
    for (const char *type : rtfTypes) {
        QByteArray rtf = data.data(QString::fromLatin1(type));
        if (!rtf.isEmpty())
            return rtf;
    }
    return {};
}

bool pasteRtf(RichTextBox &box, const QMimeData &data)
{
    const QByteArray rtf = rtfOf(data);
    if (rtf.isEmpty())
        return false;
    if (rtf.size() > LargestText)
        throw LimitError(QStringLiteral("bytes of pasted RTF"), LargestText);
    try {
        box.setSelRtf(rtf);
        return true;
    } catch (const FormatError &) {
        return false;
    }
}
bool pastePlainRtf(RichTextBox &box, const QMimeData &data)
{
    HiddenBox reduced;
    if (!pasteRtf(reduced, data))
        return false;
    box.setSelText(reduced.text());
    return true;
}

QByteArray rtfOfHtml(const RichTextBox &box, const QMimeData &data)
{
    const QFont &base = box.baseFont();
    return RichTextClipboard::rtfFromHtml(data.html(), base.family(), base.pointSizeF());
}
} // namespace

QByteArray RichTextClipboard::rtfFromHtml(const QString &html, const QString &fontName,
                                          double points)
{
    if (html.size() > LargestText)
        throw LimitError(QStringLiteral("characters of HTML"), LargestText);
    QFont base(fontName);
    base.setPointSizeF(points);
    SealedDocument source;
    source.setUndoRedoEnabled(false);
    source.setDefaultFont(base);
    source.setHtml(html);
    QTextDocument flat;
    flat.setUndoRedoEnabled(false);
    QTextCursor cursor(&flat);
    cursor.beginEditBlock();
    DocumentBuilder builder(cursor, base);
    Flattener(builder, base).flatten(source);
    builder.finish();
    cursor.endEditBlock();
    return writeRtf(flat, base);
}

std::unique_ptr<QMimeData> RichTextClipboard::mimeData(const RichTextBox &box)
{
    if (box.selLength() == 0)
        return nullptr;
    auto data = std::make_unique<QMimeData>();
    const QByteArray rtf = box.selRtf();
    data->setHtml(box.selHtml());
    for (const char *type : {"text/rtf", "application/rtf"})
        data->setData(QString::fromLatin1(type), rtf);
    data->setText(box.selText().replace(QLatin1String("\r\n"), QLatin1String("\n")));
    return data;
}

bool RichTextClipboard::canPaste(const QMimeData &data)
{
    return data.hasText() || data.hasHtml() || !rtfOf(data).isEmpty();
}

bool RichTextClipboard::paste(RichTextBox &box, const QMimeData &data)
{
    if (pasteRtf(box, data))
        return true;
    if (data.hasHtml()) {
        box.setSelRtf(rtfOfHtml(box, data));
        return true;
    }
    if (!data.hasText())
        return false;
    box.setSelText(data.text());
    return true;
}

bool RichTextClipboard::pastePlain(RichTextBox &box, const QMimeData &data)
{
    if (data.hasText())
        box.setSelText(data.text());
    else if (data.hasHtml())
        box.setSelText(rtfToPlainText(rtfOfHtml(box, data)));
    else
        return pastePlainRtf(box, data);
    return true;
}
