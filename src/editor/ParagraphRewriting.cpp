#include "editor/ParagraphRewriting.h"

#include "platform/Errors.h"
#include "richtext/HiddenBox.h"
#include "store/DamagedTexts.h"
#include "store/ParagraphTransaction.h"

void rewriteParagraphs(Variables &variables, const QString &title, const QList<int> &numbers,
                       const Rewrite &rewrite, const Progress &progress)
{
    ParagraphTransaction transaction(variables, {title, {}});
    HiddenBox box;
    box.setBaseFont(variables.defaultFontName, variables.defaultFontSize);
    QList<int> unreadable;
    int done = 0;
    for (const int n : numbers) {
        if (const std::optional<QByteArray> rtf = readableText(variables, n, unreadable))
            if (const std::optional<QString> references = rewrite(n, *rtf, box))
                transaction.change({n, n, box.rtf(), *references, variables.Unmixable.at(n) == 1});
        progress(++done, static_cast<int>(numbers.size()));
    }
    if (!unreadable.isEmpty())
        throw UnreadableTexts(unreadable);
    transaction.commit();
}
