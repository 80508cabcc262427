#include "convert/html/CodeSnippet.h"

#include "platform/SafeFile.h"
#include "richtext/CodePage.h"

#include <QFileInfo>
#include <QStringDecoder>

namespace
{
constexpr qint64 LargestSnippet = 1024 * 1024;

CodeSnippet::Encoding encodingFor(const CodeSnippet &snippet)
{
    if (snippet.encoding)
        return *snippet.encoding;
    return snippet.text.contains(QStringLiteral("windows-1252"), Qt::CaseInsensitive)
               ? CodeSnippet::Encoding::Windows1252
               : CodeSnippet::Encoding::Utf8;
}
} // namespace

CodeSnippet readSnippet(const QString &path)
{
    if (!QFileInfo::exists(path))
        return {};
    const QByteArray bytes = readWholeFile(path, LargestSnippet);
    // The decoder would wait for the rest of a letter at the very end; the line end refuses it one.
    QStringDecoder utf8(QStringDecoder::Utf8);
    CodeSnippet snippet{QString(utf8(bytes + '\n')).chopped(1), CodeSnippet::Encoding::Utf8};
    if (utf8.hasError())
        snippet = {fromWindows1252(bytes), CodeSnippet::Encoding::Windows1252};
    else if (snippet.text.size() == bytes.size())
        snippet.encoding = std::nullopt; // ASCII tells nothing
    snippet.text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return snippet;
}

void saveSnippet(const QString &path, const CodeSnippet &snippet)
{
    QString text = snippet.text + u'\n';
    text.replace(u'\n', QStringLiteral("\r\n"));
    QByteArray bytes = text.toUtf8();
    if (encodingFor(snippet) == CodeSnippet::Encoding::Windows1252)
        bytes = toWindows1252(text).value_or(bytes);
    writeWholeFile(path, bytes, Durability::Full, Links::Follow);
}
