#pragma once

#include <QColor>
#include <QToolButton>

// A button that shows the colour it gives to the text.
class ColorButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor)

public:
    explicit ColorButton(QWidget *parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color;
};
