#include "editor/MenuStates.h"

#include "store/AdventureEvents.h"

#include <QAbstractButton>
#include <QAction>
#include <QMenu>

MenuStates::MenuStates(const Variables &variables) : m_variables(variables)
{
    connect(variables.Events.get(), &AdventureEvents::adventureReplaced, this,
            &MenuStates::refresh);
}

void MenuStates::add(QAction &item)
{
    item.setEnabled(m_variables.AdventureOpen);
    m_items.append(&item);
}

void MenuStates::add(QAbstractButton &button)
{
    button.setEnabled(m_variables.AdventureOpen);
    m_buttons.append(&button);
}

void MenuStates::watch(const QMenu &menu)
{
    connect(&menu, &QMenu::aboutToShow, this, &MenuStates::refresh);
}

void MenuStates::refresh()
{
    for (QAction *item : std::as_const(m_items))
        item->setEnabled(m_variables.AdventureOpen);
    for (QAbstractButton *button : std::as_const(m_buttons))
        button->setEnabled(m_variables.AdventureOpen);
}
