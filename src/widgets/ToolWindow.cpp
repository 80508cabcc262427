#include "widgets/ToolWindow.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace
{
void placeAside(QWidget &tool)
{
    const QRect room = tool.screen()->availableGeometry();
    const QPoint wished =
        tool.parentWidget()->frameGeometry().bottomRight() - tool.rect().bottomRight();
    tool.move(
        std::clamp(wished.x(), room.left(), std::max(room.left(), room.right() - tool.width())),
        std::clamp(wished.y(), room.top(), std::max(room.top(), room.bottom() - tool.height())));
}
} // namespace

void showAside(QWidget &tool)
{
    if (!tool.isVisible())
        placeAside(tool);
    tool.show();
    tool.raise();
    tool.activateWindow();
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
