#include "views/reading/ReadingLinks.h"

#include "richtext/TextPositions.h"
#include "store/ReferenceIndex.h"
#include "store/references/ReferenceMarks.h"

#include <algorithm>

// What is marked are the index's references, in the same order, and what merely looks like one.
QList<ReadingPage::Link> linksOf(const ReadingPage &page, const Variables &variables,
                                 const ParagraphSet &taken)
{
    using Kind = ReadingPage::Link::Kind;
    const QString text = page.text();
    QList<ReferenceMark> marks = referenceMarks(text, variables.TargetPhrase);
    marks.removeIf([](const ReferenceMark &mark) { return mark.read == 0; });
    const QList<int> targets = referredParagraphs(referenceEntry(text, variables.TargetPhrase));
    QList<ReadingPage::Link> links;
    for (qsizetype i = 0; i < std::min(marks.size(), targets.size()); ++i) {
        const int target = targets.at(i);
        const Kind leading = taken.at(target) ? Kind::Taken : Kind::Open;
        const auto from = static_cast<int>(marks.at(i).position);
        const auto to = static_cast<int>(marks.at(i).position + marks.at(i).length);
        links.append({TextPositions::toDocument(*page.document(), from),
                      TextPositions::toDocument(*page.document(), to), target,
                      variables.Written.at(target) == 1 ? leading : Kind::Empty});
    }
    return links;
}
