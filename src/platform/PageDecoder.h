#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringDecoder>

// Decodes bytes of a code page, by what the system has for it. Bytes that mean nothing in the page
// become U+FFFD; a character cut in two at the end is left out.
class PageDecoder
{
public:
    // The number is that of Windows: 1250 to 1258, 932, 10000 for Mac Roman, 65001 for UTF-8...
    explicit PageDecoder(int page);

    // False for a page that the system does not know: then nothing is to be decoded.
    bool isValid() const;
    QString decode(QByteArrayView bytes);

private:
#ifdef Q_OS_WIN
    int m_page;
#else
    QStringDecoder m_converter;
#endif
};
