#pragma once

#include "views/grid/GridCell.h"

#include <QList>
#include <QWidget>

// What the colours and letters of the statuses mean, a column of words beside samples; or, of
// written numbers, what their shades mean.
class GridLegend : public QWidget
{
    Q_OBJECT

public:
    explicit GridLegend(QWidget *parent = nullptr);

    void setShaded(bool shaded);

private:
    void addRow(const GridCell &cell, const QString &words, QList<QWidget *> *when);

    QList<QWidget *> m_unshaded; // shown without shades only, and with them only
    QList<QWidget *> m_shaded;
};
