#pragma once

#include "platform/PageDecoder.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <map>
#include <optional>

// Windows-1252, the character set of everything that we write. The five bytes that it leaves
// undefined (81 8d 8f 90 9d) stand for the C1 control of the same code, so that every byte has a
// character and every byte string survives the way to QString and back.
QString fromWindows1252(QByteArrayView bytes);

// Empty when a character has no byte.
std::optional<QByteArray> toWindows1252(const QString &text);

// The byte of one character, or empty.
std::optional<uchar> windows1252Byte(QChar character);

// Decodes bytes of the code pages that RTF names. Owns one converter for each page that was used.
class CodePage
{
public:
    static constexpr int Windows1252 = 1252;
    static constexpr int MacRoman = 10000;

    // The page that goes with the \fcharset of a font; 0 when the document's own page applies.
    static int fromFontCharset(int charset);

    // An unknown page is read as Windows-1252. Bytes that mean nothing in the page become U+FFFD; a
    // character cut in two at the end is left out.
    QString decode(QByteArrayView bytes, int page);

private:
    std::map<int, PageDecoder> m_decoders;
};
