#include "app/RecentMenu.h"

#include "editor/options/EditorComfort.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>

RecentMenu::RecentMenu(const ComfortKeeper &keeper, QMenu &menu, QAction &before)
    : QObject(&menu), m_keeper(keeper), m_menu(menu), m_before(before)
{
    menu.setToolTipsVisible(true);
    connect(&menu, &QMenu::aboutToShow, this, &RecentMenu::refresh);
}

void RecentMenu::refresh()
{
    qDeleteAll(m_items);
    m_items.clear();
    for (const QString &path : m_keeper.comfort().adventures) {
        const QString name = QFileInfo(path).fileName().replace(u'&', QStringLiteral("&&"));
        auto *item = new QAction(tr("&%1 %2").arg(m_items.size() + 1).arg(name), this);
        item->setToolTip(QDir::toNativeSeparators(path));
        connect(item, &QAction::triggered, this, [this, path] { Q_EMIT chosen(path); });
        m_items.append(item);
    }
    if (!m_items.isEmpty()) {
        m_items.append(new QAction(this));
        m_items.last()->setSeparator(true);
    }
    m_menu.insertActions(&m_before, m_items);
}
