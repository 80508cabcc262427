#include "richtext/RichTextBox.h"

#include "platform/SafeFile.h"
#include "richtext/DocumentBuilder.h"
#include "richtext/RtfReader.h"
#include "richtext/RtfWriter.h"
#include "richtext/SelectionFormats.h"
#include "richtext/TextCleaning.h"
#include "richtext/TextPositions.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <algorithm>

// Replacing the whole text: listeners are told that it is no edit, nothing goes into the undo list
// and the list is cleared.
class RichTextBox::Loading
{
public:
    explicit Loading(RichTextBox &box) : m_box(box), m_undo(box.document()->isUndoRedoEnabled())
    {
        m_box.m_loading = true;
        m_box.document()->setUndoRedoEnabled(false);
        m_box.document()->clear();
    }
    ~Loading()
    {
        m_box.document()->setUndoRedoEnabled(m_undo);
        m_box.document()->setModified(false);
        m_box.select(0, 0);
        m_box.m_loading = false;
    }
    Loading(const Loading &) = delete;
    Loading &operator=(const Loading &) = delete;

private:
    RichTextBox &m_box;
    bool m_undo;
};

RichTextBox::EditStep::EditStep(RichTextBox &box) : m_cursor(box.document())
{
    m_cursor.beginEditBlock();
}

RichTextBox::EditStep::~EditStep()
{
    m_cursor.endEditBlock();
}

namespace
{
QString withCrLf(QString text)
{
    return text.replace(QChar(QChar::ParagraphSeparator), QLatin1String("\r\n"));
}
} // namespace

RichTextBox::RichTextBox() : m_baseFont(QStringLiteral("Times New Roman"))
{
    m_baseFont.setPointSizeF(CharState::DefaultHalfPoints / 2.0);
}

QString RichTextBox::text() const
{
    return withCrLf(document()->toRawText());
}

void RichTextBox::setText(const QString &text)
{
    m_room.check(text);
    const Loading loading(*this);
    const EditStep step(*this);
    QTextCursor cursor(document());
    const QTextCharFormat format = CharState::plain(m_baseFont).toFormat(m_baseFont);
    cursor.setBlockCharFormat(format);
    cursor.insertText(cleanedText(text), format);
}

int RichTextBox::textLength() const
{
    return TextPositions::textLength(*document());
}

QByteArray RichTextBox::rtf() const
{
    return writeRtf(*document(), m_baseFont);
}

void RichTextBox::setRtf(const QByteArray &rtf)
{
    if (rtf.isEmpty()) {
        setText(QString());
        return;
    }
    RtfReader reader(rtf);
    const Loading loading(*this);
    const EditStep step(*this);
    DocumentBuilder builder(QTextCursor(document()), m_baseFont);
    reader.read(builder);
    builder.finish();
}

void RichTextBox::loadFile(const QString &path)
{
    const QByteArray rtf = readWholeFile(path, LargestText);
    m_room.check(rtf, m_baseFont);
    setRtf(rtf);
}

void RichTextBox::saveFile(const QString &path) const
{
    writeWholeFile(path, rtf(), Durability::Full, Links::Follow);
}

int RichTextBox::selStart() const
{
    return TextPositions::toText(*document(), cursor().selectionStart());
}

int RichTextBox::selLength() const
{
    return TextPositions::toText(*document(), cursor().selectionEnd()) - selStart();
}

void RichTextBox::select(int start, int length)
{
    const int textLength = TextPositions::textLength(*document());
    const int first = std::clamp(start, 0, textLength);
    const int behind = first + std::clamp(length, 0, textLength - first);
    QTextCursor selection(document());
    selection.setPosition(TextPositions::toDocument(*document(), first));
    selection.setPosition(TextPositions::toDocument(*document(), behind), QTextCursor::KeepAnchor);
    setCursor(selection);
}

QString RichTextBox::selText() const
{
    return withCrLf(cursor().selectedText());
}

void RichTextBox::setSelText(const QString &text)
{
    QTextCursor selection = cursor();
    m_room.take(selection, m_baseFont, text);
    const QTextCharFormat format = SelectionFormats::firstCharFormat(selection);
    {
        const EditStep step(*this);
        selection.removeSelectedText();
        selection.insertText(cleanedText(text), format);
    }
    m_room.taken(selection);
    setCursor(selection);
}

QByteArray RichTextBox::selRtf() const
{
    const QTextCursor selection = cursor();
    return writeRtf(*document(), m_baseFont, selection.selectionStart(), selection.selectionEnd());
}

void RichTextBox::setSelRtf(const QByteArray &rtf)
{
    if (rtf.isEmpty()) {
        setSelText(QString());
        return;
    }
    QTextCursor selection = cursor();
    m_room.take(selection, m_baseFont, rtf);
    RtfReader reader(rtf);
    const QTextBlock last = document()->findBlock(selection.selectionEnd());
    const QTextBlockFormat formatBehind = last.blockFormat();
    {
        const EditStep step(*this);
        selection.removeSelectedText();
        DocumentBuilder builder(selection, m_baseFont, formatBehind);
        reader.read(builder);
        selection = builder.finish();
    }
    m_room.taken(selection);
    setCursor(selection);
}

QString RichTextBox::selHtml() const
{
    return cursor().selection().toHtml();
}

int RichTextBox::find(const QString &needle, int start, FindOptions options)
{
    const auto found = static_cast<int>(findText(text(), needle, start, options));
    if (found >= 0)
        select(found, static_cast<int>(needle.size()));
    return found;
}

void RichTextBox::setBaseFont(const QString &name, double points)
{
    m_baseFont = QFont(cleanedFontName(name));
    m_baseFont.setPointSizeF(points > 0 ? points : CharState::DefaultHalfPoints / 2.0);
    baseFontChanged(m_baseFont);
}

void RichTextBox::baseFontChanged(const QFont &font)
{
    document()->setDefaultFont(font);
}
