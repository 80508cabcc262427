#pragma once

#include <QScrollArea>

// Scrolls what it holds up and down, and is always wide enough for all of it and the bar.
class ColumnArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit ColumnArea(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int neededWidth() const;
};
