#include "editor/references/ReferenceMenu.h"

#include "editor/RtfBox.h"
#include "editor/references/ReferenceUnderlines.h"
#include "platform/Guarded.h"
#include "richtext/TextPositions.h"
#include "store/Variables.h"
#include "store/references/ReferenceMends.h"

#include <QContextMenuEvent>
#include <QMenu>

ReferenceMenu::ReferenceMenu(const Variables &variables, Prompts &prompts, RtfBox &box,
                             const ReferenceUnderlines &underlines)
    : QObject(&box), m_variables(variables), m_prompts(prompts), m_box(box),
      m_underlines(underlines)
{
    box.installEventFilter(this);
    box.viewport()->installEventFilter(this);
}

// The mouse asks the viewport, the key the box.
bool ReferenceMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu)
        return false;
    const auto &asked = *static_cast<QContextMenuEvent *>(event);
    const bool byKey = asked.reason() == QContextMenuEvent::Keyboard;
    return byKey == (watched == &m_box) && show(asked);
}

bool ReferenceMenu::show(const QContextMenuEvent &event)
{
    const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
    const auto place =
        byKey ? m_underlines.at(m_box.textCursor().position()) : m_underlines.under(event.pos());
    if (!place || place->mark.doubt == Doubt::None || m_box.isReadOnly())
        return false;
    QMenu *menu = m_box.createStandardContextMenu(event.pos());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *ordinary = menu->actions().value(0);
    auto *reason = new QAction(
        doubtReason(place->mark.doubt, place->mark.read, m_variables.TargetPhrase), menu);
    reason->setEnabled(false);
    menu->insertAction(ordinary, reason);
    const int lineStart = place->block.position();
    const QList<Mend> mends = mendsOf(place->mark, place->block.text(),
                                      place->block.previous().text(), m_variables.TargetPhrase);
    for (const Mend &mend : mends) {
        auto *action = new QAction(mend.caption, menu);
        connectGuarded(action, &QAction::triggered, this, m_prompts,
                       [this, lineStart, mend] { this->mend(lineStart, mend); });
        menu->insertAction(ordinary, action);
    }
    menu->insertSeparator(ordinary);
    menu->popup(byKey ? m_box.viewport()->mapToGlobal(m_box.cursorRect().bottomLeft())
                      : event.globalPos());
    return true;
}

void ReferenceMenu::mend(int lineStart, const Mend &mend)
{
    const auto inText = [&](qsizetype inLine) {
        return TextPositions::toText(*m_box.document(), lineStart + static_cast<int>(inLine));
    };
    QList<Replacement> replacements = mend.replacements;
    for (Replacement &replacement : replacements) {
        const int end = inText(replacement.position + replacement.length);
        replacement.position = inText(replacement.position);
        replacement.length = end - replacement.position;
    }
    replaceInBox(m_box, replacements);
}
