#include "editor/VisitedList.h"

#include "editor/PadNumber.h"

#include <QListWidget>

VisitedList::VisitedList(QListWidget &list) : m_list(list) {}

void VisitedList::visit(int n)
{
    const QString entry = PadNumber(n);
    const QList<QListWidgetItem *> found = m_list.findItems(entry, Qt::MatchExactly);
    if (!found.isEmpty())
        delete m_list.takeItem(m_list.row(found.first()));
    m_list.insertItem(0, entry);
    m_list.setCurrentRow(-1);
    m_list.scrollToTop();
}

void VisitedList::clear()
{
    m_list.clear();
}
