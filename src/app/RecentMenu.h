#pragma once

#include <QList>
#include <QObject>

class ComfortKeeper;
class QAction;
class QMenu;

// The adventures opened last, in a menu before one of its items.
class RecentMenu : public QObject
{
    Q_OBJECT

public:
    RecentMenu(const ComfortKeeper &keeper, QMenu &menu, QAction &before);

Q_SIGNALS:
    void chosen(const QString &path);

private:
    void refresh();

    const ComfortKeeper &m_keeper;
    QMenu &m_menu;
    QAction &m_before;
    QList<QAction *> m_items;
};
