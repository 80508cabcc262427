#pragma once

class QPoint;
class QRect;
class QWidget;

// What the windows have in common that stay open beside the main window, their parent.

// Shows the tool window and brings it to the front. It comes to the lower right of the main window,
// where it covers least of the text, unless it is open already; never beyond the screen.
void showAside(QWidget &tool);

// Moves the window's upper left corner there, or as near as the whole of it stays on the screen; a
// window that is larger than that becomes smaller.
void moveWithinScreen(QWidget &window, const QPoint &topLeft);

// A tool window that covers this place of the screen, where something was found, makes room for it.
void keepClear(QWidget &tool, const QRect &place);

// A text that changes has room for so many lines, also in the smallest window, and what stands
// around it stays where it is.
void keepRoomForLines(QWidget &text, int lines);
