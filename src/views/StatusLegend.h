#pragma once

#include <QWidget>

// What the colours and letters of the statuses mean, a column of words beside samples.
class StatusLegend : public QWidget
{
    Q_OBJECT

public:
    explicit StatusLegend(QWidget *parent = nullptr);
};
