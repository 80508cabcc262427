#pragma once

#include <QWidget>

// What the colours and letters of the statuses mean, a column of words beside samples.
class GridLegend : public QWidget
{
    Q_OBJECT

public:
    explicit GridLegend(QWidget *parent = nullptr);
};
