#include "convert/html/HtmlCharset.h"

#include "convert/html/HtmlText.h"
#include "richtext/CodePage.h"

#include <QRegularExpression>
#include <algorithm>

namespace
{
bool isAscii(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<uchar>(c) < 0x80; });
}
} // namespace

HtmlCharset declaredCharset(const QString &html)
{
    static const QRegularExpression declaration(
        QStringLiteral("charset\\s*=\\s*[\"']?\\s*utf-?8\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return declaration.match(html).hasMatch() ? HtmlCharset::Utf8 : HtmlCharset::Windows1252;
}

QByteArray htmlBytes(const QString &html, HtmlCharset charset)
{
    return charset == HtmlCharset::Utf8 ? html.toUtf8() : toHtmlBytes(html);
}

QByteArray recodedHtml(QByteArrayView html, HtmlCharset charset)
{
    return charset == HtmlCharset::Utf8 && !isAscii(html) ? fromWindows1252(html).toUtf8()
                                                          : html.toByteArray();
}
