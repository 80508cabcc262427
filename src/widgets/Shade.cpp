#include "widgets/Shade.h"

#include <QPalette>

QColor shade(const QPalette &palette, double share)
{
    QColor colour = palette.color(QPalette::Text);
    colour.setAlphaF(static_cast<float>(share));
    return colour;
}
