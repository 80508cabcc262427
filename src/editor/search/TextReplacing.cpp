#include "editor/search/TextReplacing.h"

#include "editor/ParagraphRewriting.h"
#include "richtext/RichTextBox.h"
#include "richtext/RtfPlainText.h"
#include "store/HistoryNotes.h"
#include "store/ParagraphStore.h"
#include "store/ReferenceIndex.h"

#include <algorithm>

namespace
{
// Whether the match stands alone behind before, which may be what the replacement brought in.
bool standsAlone(const QString &text, qsizetype at, qsizetype length, QStringView before)
{
    const QString around = before.toString() + text.mid(at, length + 1);
    return isWholeWord(around, before.size(), length);
}
} // namespace

QList<Replacement> replacementsOfAll(const QString &text, const QString &needle, const QString &by,
                                     FindOptions options)
{
    const FindOptions anywhere{false, options.matchCase};
    QList<Replacement> replacements;
    QStringView before; // the character that stands before text.mid(behind) by now
    qsizetype behind = 0;
    qsizetype at = 0;
    while ((at = findText(text, needle, at, anywhere)) >= 0) {
        const QStringView left = at == behind ? before : QStringView(text).mid(at - 1, 1);
        if (options.wholeWord && !standsAlone(text, at, needle.size(), left)) {
            ++at;
            continue;
        }
        replacements.append({at, needle.size(), by});
        at += needle.size();
        behind = at;
        before = by.isEmpty() ? left : QStringView(by).last(1);
    }
    return replacements;
}

int replaceInParagraphs(Variables &variables, RichTextBox &current, const QString &title,
                        const QList<int> &numbers, const ReplacementsIn &replacementsIn,
                        const Progress &progress)
{
    qsizetype count = 0;
    bool currentChanged = false;
    const auto rewrite = [&](int n, const QByteArray &rtf,
                             RichTextBox &box) -> std::optional<QString> {
        if (replacementsIn(n, rtfToPlainText(rtf)).isEmpty())
            return std::nullopt;
        box.setRtf(rtf);
        const QList<Replacement> replacements = replacementsIn(n, box.text());
        replaceInBox(box, replacements);
        count += replacements.size();
        currentChanged |= n == variables.CurrentParagraph;
        return referenceEntry(box.text(), variables.TargetPhrase);
    };
    rewriteParagraphs(variables, title, numbers, rewrite, progress);
    if (currentChanged) {
        replaceInBox(current, replacementsIn(variables.CurrentParagraph, current.text()));
        variables.ParagraphDirty = true;
        SaveCurParg(variables, current);
        amendLast(variables, variables.CurrentParagraph);
    }
    return static_cast<int>(count);
}
