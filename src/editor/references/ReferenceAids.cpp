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

QString lineBeforeCaret(const RtfBox &box)
{
    const QTextCursor caret = box.textCursor();
    return caret.block().text().left(caret.positionInBlock());
}
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
    const QString before = lineBeforeCaret(m_box);
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

// In the place of what of a number stands there already.
void ReferenceAids::insert(int n)
{
    const QString before = lineBeforeCaret(m_box);
    const auto digits = static_cast<int>(digitsBefore(before));
    if (digits > 0)
        m_box.select(m_box.selStart() - digits, digits);
    m_box.setSelText(QString::number(n));
}
