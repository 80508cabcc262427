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

void keepRoomForLines(QWidget &text, int lines)
{
    text.setMinimumHeight(lines * text.fontMetrics().lineSpacing());
}
