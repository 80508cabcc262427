#pragma once

#include "app/Settings.h"

#include <QList>
#include <QRect>

class QWidget;

// Where the inside of the main window stands, in the twips of the settings: nobody knows how large
// its frame is before it is shown, so that a frame put where it was would let the window sink by
// the height of its title. Of a maximised window: where it stands when it is not.
WindowGeometry geometryOf(const QWidget &window);

// Puts the window there, on a screen that exists.
void place(QWidget &window, const WindowGeometry &geometry);

// For a window that nobody has placed yet.
void shrinkToScreen(QWidget &window);

// wanted, at least as large as smallest, moved and shrunk so that it lies within the one of the
// screens that it overlaps most; within the first when it overlaps none.
QRect withinScreens(const QRect &wanted, const QSize &smallest, const QList<QRect> &screens);
