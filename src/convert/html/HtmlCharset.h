#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

// The character sets in which HTML goes out.
enum class HtmlCharset { Windows1252, Utf8 };

// UTF-8 when the HTML code declares it ("charset=utf-8"), else Windows-1252.
HtmlCharset declaredCharset(const QString &html);

// HTML code in a character set. What the set lacks is written as numeric entities ("&#8658;").
QByteArray htmlBytes(const QString &html, HtmlCharset charset);
// The same for HTML in Windows-1252.
QByteArray recodedHtml(QByteArrayView html, HtmlCharset charset);
