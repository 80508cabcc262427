#pragma once

#include "store/ParagraphArray.h"

#include <QColor>
#include <QString>

// How many of many readings come to each number, as a share from 0 to 1, for the grid to show.
using GridShades = ParagraphArray<double, 2001>;

// Lighter and darker blue, which no status has; white for 0. Small shares, of which there are most,
// are told apart better than large ones.
QColor shadeColour(double share);

// For what is written upon it, with a contrast of 4.5 to 1 at least.
QColor inkUpon(double share);

// "12,3 % des lectures y passent".
QString shadeWords(double share);
