#pragma once

#include "store/Variables.h"

#include <QList>
#include <QObject>

class QAbstractButton;
class QAction;
class QMenu;

// Enables the commands that need an open adventure: each time their menu opens, and when an
// adventure becomes the open one, as their keys and buttons work without the menu.
class MenuStates : public QObject
{
    Q_OBJECT

public:
    explicit MenuStates(const Variables &variables);

    void add(QAction &item);
    void add(QAbstractButton &button);
    void watch(const QMenu &menu);

private:
    void refresh();

    const Variables &m_variables;
    QList<QAction *> m_items;
    QList<QAbstractButton *> m_buttons;
};
