#include "editor/references/ReferenceAids.h"

#include "editor/RtfBox.h"
#include "editor/references/ReferenceList.h"
#include "editor/references/ReferenceMenu.h"
#include "editor/references/ReferencePointer.h"
#include "editor/references/ReferenceUnderlines.h"
#include "platform/Ascii.h"
#include "platform/Failures.h"
#include "store/Variables.h"

#include <QTextBlock>
#include <algorithm>

namespace
{
// The digits that the text ends with.
qsizetype digitsBefore(const QString &text)
{
    qsizetype digits = 0;
    while (digits < text.size() && isAsciiDigit(text.at(text.size() - 1 - digits)))
        ++digits;
    return digits;
}

qsizetype digitsFrom(const QString &text)
{
    return std::find_if_not(text.begin(), text.end(), isAsciiDigit) - text.begin();
}

// The line that the caret stands in.
struct CaretLine {
    explicit CaretLine(const QTextCursor &caret)
        : before(caret.block().text().left(caret.positionInBlock())),
          behind(caret.block().text().mid(caret.positionInBlock()))
    {
    }
    QString before;
    QString behind;
};
} // namespace

ReferenceAids::ReferenceAids(const Variables &variables, Prompts &prompts, RtfBox &box)
    : QObject(&box), m_variables(variables), m_prompts(prompts), m_box(box),
      m_underlines(new ReferenceUnderlines(variables, box))
{
    new ReferencePointer(variables, box, *m_underlines);
    new ReferenceMenu(variables, prompts, box, *m_underlines);
}

void ReferenceAids::setShown(bool shown)
{
    m_underlines->setShown(shown);
}

void ReferenceAids::follow()
{
    m_underlines->followPhrase();
}

bool ReferenceAids::openList()
{
    const QString before = CaretLine(m_box.textCursor()).before;
    const qsizetype digits = digitsBefore(before);
    const QString &phrase = m_variables.TargetPhrase;
    if (m_box.isReadOnly() || m_box.textCursor().hasSelection() || phrase.isEmpty() ||
        !before.chopped(digits).endsWith(phrase, Qt::CaseInsensitive))
        return false;
    m_list = new ReferenceList(m_variables, before.right(digits), &m_box);
    connect(m_list, &ReferenceList::chosen, this, [this](int n) {
        reportingFailures(m_prompts, [&] {
            insert(n);
            return true;
        });
    });
    const QRect caret = m_box.cursorRect();
    const QPoint corner = m_box.viewport()->mapToGlobal(caret.topLeft());
    m_list->showBeside({corner, caret.size()});
    return true;
}

// In the place of the digits that stand there already, on both sides of the caret.
void ReferenceAids::insert(int n)
{
    const CaretLine line(m_box.textCursor());
    const auto before = static_cast<int>(digitsBefore(line.before));
    const auto behind = static_cast<int>(digitsFrom(line.behind));
    if (before + behind > 0)
        m_box.select(m_box.selStart() - before, before + behind);
    m_box.setSelText(QString::number(n));
}
