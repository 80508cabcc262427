#include "editor/FirstWords.h"

#include "richtext/HiddenBox.h"
#include "store/ParagraphTexts.h"

#include <exception>

QString firstWords(const Variables &variables, int n)
{
    constexpr qsizetype longest = 90;
    try {
        HiddenBox box;
        box.setRtf(GetParagraphRtf(variables, n));
        const QString text = box.text().left(4 * longest).simplified();
        if (text.size() <= longest)
            return text;
        const qsizetype end = text.lastIndexOf(u' ', longest);
        return text.left(end > 0 ? end : longest) + QStringLiteral(" …");
    } catch (const std::exception &) {
        return {};
    }
}
