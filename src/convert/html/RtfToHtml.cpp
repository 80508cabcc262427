#include "convert/html/RtfToHtml.h"

#include "convert/html/HtmlLinks.h"
#include "convert/html/HtmlPass.h"
#include "convert/html/HtmlText.h"
#include "platform/Errors.h"
#include "richtext/CodePage.h"
#include "store/ReferenceIndex.h"

namespace
{
// What would end an address or begin another part of it. File names themselves stay.
QString percentEncoded(QString name)
{
    name.replace(u'%', QStringLiteral("%25"));
    name.replace(u'#', QStringLiteral("%23"));
    name.replace(u'?', QStringLiteral("%3F"));
    return name.replace(u'"', QStringLiteral("%22"));
}

LinkForm linkForm(const QString &filePrefix, bool manyFiles)
{
    if (!manyFiles)
        return {"<A HREF=\"#P", "\">"};
    return {"<A HREF=\"" + toHtmlBytes(percentEncoded(filePrefix)), ".htm\">"};
}
} // namespace

QByteArray RtfToHtml(const Variables &variables, QByteArrayView rtf, const QString &filePrefix,
                     int n, bool manyFiles)
{
    if (n < 0 || n > Variables::LastParagraph)
        throw LimitError(QStringLiteral("paragraph number %1").arg(n), Variables::LastParagraph);
    const QByteArray html = HtmlPass(rtf).convert();
    const QList<int> numbers = referredParagraphs(variables.refIndex.at(n));
    const std::optional<QByteArray> phrase = toWindows1252(variables.TargetPhrase);
    if (!phrase || phrase->isEmpty() || numbers.isEmpty())
        return html;
    return HtmlLinks(*phrase, numbers, linkForm(filePrefix, manyFiles)).apply(html);
}
