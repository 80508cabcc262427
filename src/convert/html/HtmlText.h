#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

// HTML that only grows, up to a size that no real paragraph comes near: small hostile texts can ask
// for gigabytes.
class HtmlText
{
public:
    static constexpr qsizetype MaxBytes = 64LL * 1024 * 1024;

    void reserve(qsizetype size) { m_bytes.reserve(size); }
    // Throws LimitError, and appends nothing, when the text would grow beyond MaxBytes.
    void append(QByteArrayView piece);

    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

// Text in Windows-1252, with numeric entities for what it lacks. Nothing else is escaped.
QByteArray toHtmlBytes(QStringView text);

// "&#N;" with the character's number; what HTML has no number for gives U+FFFD's.
QByteArray numericEntity(char32_t character);
