#include "richtext/DocumentBuilder.h"

#include <QTextDocument>
#include <QTextList>

namespace
{
// A list marks all its items as changed for each one that joins. Bullets look the same in whatever
// list they are, so long runs of them are cut into several.
constexpr int longestList = 64;
} // namespace

QTextListFormat bulletListFormat()
{
    QTextListFormat format;
    format.setStyle(QTextListFormat::ListDisc);
    format.setIndent(1);
    return format;
}

DocumentBuilder::DocumentBuilder(const QTextCursor &cursor, const QFont &base)
    : DocumentBuilder(cursor, base, cursor.blockFormat())
{
}

DocumentBuilder::DocumentBuilder(const QTextCursor &cursor, const QFont &base,
                                 const QTextBlockFormat &formatBehind)
    : m_cursor(cursor), m_base(base), m_takesLastFormat(cursor.block().length() == 1),
      m_formatBehind(formatBehind), m_format(m_formatState.toFormat(base)),
      m_blockState(ParagraphState::of(cursor.block()))
{
}

void DocumentBuilder::text(QStringView text, const CharState &state)
{
    startParagraph();
    m_cursor.insertText(text.toString(), format(state));
}

void DocumentBuilder::paragraphEnd(const ParagraphState &state, const CharState &chars)
{
    startParagraph();
    m_ended = true;
    m_endState = state;
    m_endChars = chars;
}

QTextCursor DocumentBuilder::finish()
{
    if (m_ended && m_takesLastFormat)
        applyEnd();
    return m_cursor;
}

// A paragraph is begun only when something follows, so that the last end begins none.
void DocumentBuilder::startParagraph()
{
    if (!m_ended)
        return;
    applyEnd();
    QTextBlockFormat next = m_takesLastFormat ? m_cursor.blockFormat() : m_formatBehind;
    const bool listIsFull =
        m_takesLastFormat && m_list != nullptr && m_list->count() >= longestList;
    if (listIsFull) {
        next.setObjectIndex(-1);
        m_list = nullptr;
    }
    m_cursor.insertBlock(next, format(m_endChars));
    if (listIsFull || !m_takesLastFormat)
        m_blockState = ParagraphState::of(m_cursor.block());
    m_ended = false;
}

void DocumentBuilder::applyEnd()
{
    if (m_cursor.block().length() == 1)
        m_cursor.setBlockCharFormat(format(m_endChars));
    if (m_endState == m_blockState) {
        m_list = m_cursor.currentList();
        return;
    }
    QTextBlockFormat blockFormat = m_endState.toFormat();
    if (m_endState.bullet && m_list != nullptr)
        blockFormat.setObjectIndex(m_list->objectIndex());
    m_cursor.setBlockFormat(blockFormat);
    if (m_endState.bullet && m_list == nullptr)
        m_cursor.createList(bulletListFormat());
    m_list = m_cursor.currentList();
    m_blockState = m_endState;
}

const QTextCharFormat &DocumentBuilder::format(const CharState &state)
{
    if (state != m_formatState) {
        m_formatState = state;
        m_format = state.toFormat(m_base);
    }
    return m_format;
}
