#include "editor/FirstWords.h"

#include "richtext/RtfPlainText.h"
#include "store/ParagraphTexts.h"

#include <QCoreApplication>
#include <exception>

QString firstWords(const Variables &variables, int n)
{
    constexpr qsizetype longest = 90;
    try {
        const QString whole = rtfToPlainText(GetParagraphRtf(variables, n));
        const QString text = whole.left(4 * longest).simplified();
        if (text.size() <= longest)
            return text;
        const qsizetype end = text.lastIndexOf(u' ', longest);
        return text.left(end > 0 ? end : longest) + QStringLiteral(" …");
    } catch (const std::exception &) {
        return QCoreApplication::translate("FirstWords", "illisible");
    }
}
