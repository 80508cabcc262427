#include "convert/html/RtfToHtml.h"

#include "convert/html/HtmlLinks.h"
#include "convert/html/HtmlPass.h"
#include "convert/html/HtmlText.h"
#include "platform/Errors.h"
#include "richtext/CodePage.h"
#include "store/ReferenceIndex.h"

namespace
{
LinkForm linkForm(const QString &filePrefix, bool manyFiles)
{
    if (!manyFiles)
        return {"<A HREF=\"#P", "\">"};
    return {"<A HREF=\"" + toHtmlBytes(filePrefix), ".htm\">"};
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
