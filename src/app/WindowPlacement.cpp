#include "app/WindowPlacement.h"

#include "platform/Twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace
{
// Left for the title bar, whose height nobody knows before the window is shown.
constexpr int TitleBar = 36;

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
    const QRect inside = asPlaced || normal.isEmpty() ? window.geometry() : normal;
    return {Twips::fromPixels(inside.width()), Twips::fromPixels(inside.height()),
            Twips::fromPixels(inside.x()), Twips::fromPixels(inside.y())};
}

void place(QWidget &window, const WindowGeometry &geometry)
{
    const QRect wanted(Twips::toPixels(geometry.left), Twips::toPixels(geometry.top),
                       Twips::toPixels(geometry.width), Twips::toPixels(geometry.height));
    QList<QRect> screens;
    const QList<QScreen *> all = QGuiApplication::screens();
    for (const QScreen *screen : all)
        screens.append(screen->availableGeometry());
    window.setGeometry(withinScreens(wanted, window.minimumSize(), screens));
}

void shrinkToScreen(QWidget &window)
{
    const QSize room = window.screen()->availableSize() - QSize(0, TitleBar);
    window.resize(window.size().boundedTo(room));
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
