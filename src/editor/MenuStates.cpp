#include "editor/MenuStates.h"

#include <QAction>
#include <QMenu>

void MenuStates::add(const QMenu &menu, const QList<QAction *> &actions)
{
    m_actions += actions;
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [this] { refresh(); });
    refresh();
}

void MenuStates::refresh()
{
    for (QAction *action : std::as_const(m_actions))
        action->setEnabled(m_variables.AdventureOpen);
}
