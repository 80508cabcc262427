#include "widgets/ToolWindow.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>

void showAside(QWidget &tool)
{
    if (!tool.isVisible())
        moveWithinScreen(tool, tool.parentWidget()->frameGeometry().bottomRight() -
                                   tool.rect().bottomRight());
    tool.show();
    tool.raise();
    tool.activateWindow();
}

void moveWithinScreen(QWidget &window, const QPoint &topLeft)
{
    const QRect room = window.screen()->availableGeometry();
    window.resize(window.size().boundedTo(room.size()));
    const int right = std::max(room.left(), room.right() - window.width());
    const int bottom = std::max(room.top(), room.bottom() - window.height());
    window.move(std::clamp(topLeft.x(), room.left(), right),
                std::clamp(topLeft.y(), room.top(), bottom));
}

void keepClear(QWidget &tool, const QRect &place)
{
    const QRect frame = tool.frameGeometry();
    if (!tool.isVisible() || !frame.intersects(place))
        return;
    constexpr int gap = 8;
    const QRect room = tool.screen()->availableGeometry();
    const int below = place.bottom() + gap;
    const bool fits = below + frame.height() <= room.bottom();
    tool.move(frame.x(), fits ? below : std::max(room.top(), place.top() - gap - frame.height()));
}

void keepRoomForLines(QWidget &text, int lines)
{
    text.setMinimumHeight(lines * text.fontMetrics().lineSpacing());
}
