#include "convert/html/HtmlText.h"

#include "platform/Errors.h"
#include "richtext/CodePage.h"

#include <QList>

void HtmlText::append(QByteArrayView piece)
{
    if (piece.size() > MaxBytes - m_bytes.size())
        throw LimitError(QStringLiteral("bytes of HTML"), MaxBytes);
    m_bytes.append(piece);
}

QByteArray toHtmlBytes(QStringView text)
{
    QByteArray bytes;
    for (const char32_t character : text.toUcs4()) {
        const bool isShort = character <= 0xffff;
        const std::optional<uchar> byte =
            isShort ? windows1252Byte(QChar(static_cast<char16_t>(character))) : std::nullopt;
        if (byte)
            bytes += static_cast<char>(*byte);
        else
            bytes += numericEntity(character);
    }
    return bytes;
}

QByteArray numericEntity(char32_t character)
{
    const bool hasNumber =
        character != 0 && character <= QChar::LastValidCodePoint && !QChar::isSurrogate(character);
    const char32_t number = hasNumber ? character : char32_t{QChar::ReplacementCharacter};
    return "&#" + QByteArray::number(number) + ";";
}
