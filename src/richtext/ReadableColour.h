#pragma once

#include <QColor>

// A colour in which text can be read upon a dark page: the same, or a lighter one of its hue, so
// that the contrast is 4.5 to 1. On a light page every colour is as it was chosen.
QColor readableColour(const QColor &colour, const QColor &page);

// White stands out against it more than black does.
bool isDarkPage(const QColor &page);
