#pragma once

#include <QWidget>

// What the signs of a picture of references mean, each beside its sign.
class GraphLegend : public QWidget
{
    Q_OBJECT

public:
    explicit GraphLegend(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Entry;
    static QList<Entry> entries();
    int rowHeight() const;
};
