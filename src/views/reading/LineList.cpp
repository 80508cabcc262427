#include "views/reading/LineList.h"

#include <QKeyEvent>

LineList::LineList(QWidget *parent) : QListView(parent)
{
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT chosen(index.row()); });
}

void LineList::setCurrentRow(int row)
{
    setCurrentIndex(model()->index(row, 0));
}

void LineList::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentRow() >= 0)
        Q_EMIT chosen(currentRow());
    else
        QListView::keyPressEvent(event);
}
