#pragma once

#include "store/Variables.h"

#include <QList>

class QAction;
class QMenu;

// Enables the commands that need an open adventure: each time their menu opens, and when an
// adventure becomes the open one, as their shortcuts work without the menu.
class MenuStates
{
public:
    explicit MenuStates(const Variables &variables) : m_variables(variables) {}

    // menu must not open any more once this object is gone.
    void add(const QMenu &menu, const QList<QAction *> &actions);

    void refresh();

private:
    const Variables &m_variables;
    QList<QAction *> m_actions;
};
