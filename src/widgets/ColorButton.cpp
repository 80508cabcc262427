#include "widgets/ColorButton.h"

#include <QPainter>

namespace
{
constexpr int Side = 22;
constexpr int FrameMargin = 4;
} // namespace

ColorButton::ColorButton(QWidget *parent) : QToolButton(parent) {}

void ColorButton::setColor(const QColor &color)
{
    m_color = color;
    update();
}

QSize ColorButton::sizeHint() const
{
    return {Side, Side};
}

// The outline is that of the text, so that black shows on a dark desktop and yellow on a light one.
void ColorButton::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor outline = palette().color(QPalette::ButtonText);
    outline.setAlphaF(0.55F);
    painter.setPen(outline);
    painter.setBrush(m_color);
    if (!isEnabled())
        painter.setOpacity(0.35);
    const QRectF swatch =
        QRectF(rect()).marginsRemoved({FrameMargin, FrameMargin, FrameMargin, FrameMargin});
    painter.drawRoundedRect(swatch.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}
