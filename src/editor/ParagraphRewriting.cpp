#include "editor/ParagraphRewriting.h"

#include "platform/Errors.h"
#include "richtext/HiddenBox.h"
#include "store/DamagedTexts.h"
#include "store/ParagraphTransaction.h"

namespace
{
using Use = std::function<void(int n, const RichTextBox &box, const QString &references)>;

// Hands each text that is rewritten to use.
void eachRewritten(const Variables &variables, const QList<int> &numbers, const Rewrite &rewrite,
                   const Progress &progress, const Use &use)
{
    HiddenBox box;
    box.setBaseFont(variables.defaultFontName, variables.defaultFontSize);
    QList<int> unreadable;
    int done = 0;
    for (const int n : numbers) {
        if (const std::optional<QByteArray> rtf = readableText(variables, n, unreadable))
            if (const std::optional<QString> references = rewrite(n, *rtf, box))
                use(n, box, *references);
        progress(++done, static_cast<int>(numbers.size()));
    }
    if (!unreadable.isEmpty())
        throw UnreadableTexts(unreadable);
}
} // namespace

int countRewritten(const Variables &variables, const QList<int> &numbers, const Rewrite &rewrite,
                   const Progress &progress)
{
    int count = 0;
    eachRewritten(variables, numbers, rewrite, progress,
                  [&count](int, const RichTextBox &, const QString &) { ++count; });
    return count;
}

void rewriteParagraphs(Variables &variables, const QString &title, const QList<int> &numbers,
                       const Rewrite &rewrite, const Progress &progress)
{
    ParagraphTransaction transaction(variables, {title, {}});
    eachRewritten(
        variables, numbers, rewrite, progress,
        [&](int n, const RichTextBox &box, const QString &references) {
            transaction.change({n, n, box.rtf(), references, variables.Unmixable.at(n) == 1});
        });
    transaction.commit();
}
