#pragma once

#include <QIcon>

class QColor;

// An icon crossed out in a colour: no icon theme has one for taking bullets away.
QIcon struckOut(const QIcon &icon, const QColor &color);
