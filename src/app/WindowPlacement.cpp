#include "app/WindowPlacement.h"

#include "platform/Twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace
{
// Left for the title bar, whose height nobody knows before the window is shown.
constexpr int TitleBar = 36;

// Where the inside of a window may lie.
QRect roomOn(const QScreen &screen)
{
    return screen.availableGeometry().adjusted(0, 0, 0, -TitleBar);
}

int overlap(const QRect &a, const QRect &b)
{
    const QRect common = a.intersected(b);
    return common.isEmpty() ? 0 : common.width() * common.height();
}
} // namespace

WindowGeometry geometryOf(const QWidget &window)
{
    const bool asPlaced = !window.isMaximized() && !window.isFullScreen() && !window.isMinimized();
    const QRect normal = window.normalGeometry();
    const QPoint topLeft = asPlaced || normal.isEmpty() ? window.pos() : normal.topLeft();
    const QSize size = asPlaced || normal.isEmpty() ? window.size() : normal.size();
    return {Twips::fromPixels(size.width()), Twips::fromPixels(size.height()),
            Twips::fromPixels(topLeft.x()), Twips::fromPixels(topLeft.y())};
}

void place(QWidget &window, const WindowGeometry &geometry)
{
    const QRect wanted(Twips::toPixels(geometry.left), Twips::toPixels(geometry.top),
                       Twips::toPixels(geometry.width), Twips::toPixels(geometry.height));
    QList<QRect> screens;
    const QList<QScreen *> all = QGuiApplication::screens();
    for (const QScreen *screen : all)
        screens.append(roomOn(*screen));
    const QRect placed = withinScreens(wanted, window.minimumSize(), screens);
    window.resize(placed.size());
    window.move(placed.topLeft());
}

void shrinkToScreen(QWidget &window)
{
    window.resize(window.size().boundedTo(roomOn(*window.screen()).size()));
}

QRect withinScreens(const QRect &wanted, const QSize &smallest, const QList<QRect> &screens)
{
    QRect placed(wanted.topLeft(), wanted.size().expandedTo(smallest));
    if (screens.isEmpty())
        return placed;
    QRect best = screens.first();
    for (const QRect &screen : screens) {
        if (overlap(screen, placed) > overlap(best, placed))
            best = screen;
    }
    placed.setSize(placed.size().boundedTo(best.size()).expandedTo(smallest));
    placed.moveLeft(qMax(best.left(), qMin(placed.left(), best.right() + 1 - placed.width())));
    placed.moveTop(qMax(best.top(), qMin(placed.top(), best.bottom() + 1 - placed.height())));
    return placed;
}
