#include "richtext/TextRoom.h"

#include "platform/Errors.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfWriter.h"

#include <QTextCursor>
#include <QTextDocument>

namespace
{
// Bytes. A character may bring a font of a long name, 64 tab stops and every style.
constexpr qint64 mostOfCharacter = 4000;
// The formats that what stands behind an insertion has to name again, and the header.
constexpr qint64 mostOfInsertion = 2 * mostOfCharacter;
} // namespace

void TextRoom::refuse() const
{
    throw LimitError(QStringLiteral("bytes of RTF in a text"), m_limit);
}

qint64 TextRoom::mostOf(const QByteArray &rtf, const QFont &base) const
{
    if (rtf.size() > LargestText)
        refuse();
    if (rtf.size() * mostOfCharacter <= m_limit / 2)
        return rtf.size() * mostOfCharacter;
    HiddenBox box;
    box.setBaseFont(base.family(), base.pointSizeF());
    box.setRtf(rtf);
    return box.rtf().size();
}

void TextRoom::take(const QTextCursor &selection, const QFont &base, const QString &text)
{
    takeBytes(selection, base, writtenSize(text) + mostOfInsertion);
}

void TextRoom::take(const QTextCursor &selection, const QFont &base, const QByteArray &rtf)
{
    takeBytes(selection, base, mostOf(rtf, base) + mostOfInsertion);
}

void TextRoom::takeBytes(const QTextCursor &selection, const QFont &base, qint64 bytes)
{
    const QTextDocument &document = *selection.document();
    const int end = document.characterCount() - 1;
    if (end * mostOfCharacter + bytes <= m_limit)
        return;
    if (document.revision() != m_revision || bytes > m_room) {
        const qint64 before = writeRtf(document, base, 0, selection.selectionStart()).size();
        const qint64 behind = writeRtf(document, base, selection.selectionEnd(), end).size();
        const qint64 room = m_limit - before - behind;
        if (bytes > room)
            refuse();
        m_room = room;
    }
    m_room -= bytes;
}

void TextRoom::taken(const QTextCursor &selection)
{
    m_revision = selection.document()->revision();
}

void TextRoom::check(const QByteArray &rtf, const QFont &base) const
{
    if (mostOf(rtf, base) > m_limit)
        refuse();
}

void TextRoom::check(const QString &text) const
{
    if (writtenSize(text) + mostOfInsertion > m_limit)
        refuse();
}
