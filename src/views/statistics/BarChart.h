#pragma once

#include "views/statistics/Histogram.h"

#include <QWidget>

class QPainter;

// A bar chart in the colours of the desktop. What a bar stands for is said in a line above the
// chart when the pointer is on it, or when keys have gone to it.
class BarChart : public QWidget
{
    Q_OBJECT

public:
    explicit BarChart(QWidget *parent = nullptr);

    // What the values are, along the lower edge, and what is counted, at the left.
    void setTitles(const QString &values, const QString &counted);
    void setBars(const QList<HistogramBar> &bars);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void point(qsizetype bar);
    int highest() const;
    QString words(const HistogramBar &bar) const;
    QRect plot() const;
    QRect barRect(qsizetype bar) const;
    void paintScale(QPainter &painter) const;
    void paintBars(QPainter &painter) const;
    void paintValues(QPainter &painter) const;
    void paintTitles(QPainter &painter) const;

    QList<HistogramBar> m_bars;
    QString m_values;
    QString m_counted;
    qsizetype m_pointed = -1; // -1: none
};
