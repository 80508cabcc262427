#pragma once

#include <QStyledItemDelegate>

// Paints items with boxes to be ticked, so that an empty box is seen on a dark page too.
class CheckDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
