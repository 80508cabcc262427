#pragma once

#include "richtext/TextLimit.h"

class QByteArray;
class QFont;
class QString;
class QTextCursor;

// Keeps a text from growing so large that it could not be read back. The size of a text is measured
// only when it may come near the limit; between two measurements, the steps since then are counted
// at their largest.
class TextRoom
{
public:
    void setLimit(qint64 bytes) { m_limit = bytes; }

    // Before text or RTF takes the place of the selection. Throws LimitError when the result may be
    // larger than the limit, or FormatError when the bytes are no RTF.
    void take(const QTextCursor &selection, const QFont &base, const QString &text);
    void take(const QTextCursor &selection, const QFont &base, const QByteArray &rtf);
    // After the step for which room was taken.
    void taken(const QTextCursor &selection);

    // Throws as above unless the bytes, read and written again, are within the limit.
    void check(const QByteArray &rtf, const QFont &base) const;
    void check(const QString &text) const;

private:
    [[noreturn]] void refuse() const;
    qint64 mostOf(const QByteArray &rtf, const QFont &base) const;
    void takeBytes(const QTextCursor &selection, const QFont &base, qint64 bytes);

    qint64 m_limit = LargestText;
    qint64 m_room = 0;
    int m_revision = -1; // of the document for which m_room holds
};
