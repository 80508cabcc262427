#pragma once

#include <QColor>

class QPalette;

// The colour of the text, so much of it that share is left of its contrast, on whatever it is
// painted over.
QColor shade(const QPalette &palette, double share);
