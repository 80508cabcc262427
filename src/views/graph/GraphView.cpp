#include "views/graph/GraphView.h"

#include <algorithm>

namespace
{
// By how much low..high must move to lie within 0..size, its beginning before its end.
double moveInto(double low, double high, double size)
{
    if (low < 0 || high - low > size)
        return -low;
    return high > size ? size - high : 0;
}
} // namespace

QTransform GraphView::transform() const
{
    return {scale, 0, 0, scale, -corner.x() * scale, -corner.y() * scale};
}

void GraphView::zoom(double factor, const QPointF &at)
{
    const QPointF fixed = toPicture(at);
    scale = std::clamp(scale * factor, Smallest, Largest);
    bring(fixed, at);
}

void GraphView::fit(const QRectF &bounds, const QSizeF &size)
{
    scale =
        std::clamp(std::min({1.0, size.width() / bounds.width(), size.height() / bounds.height()}),
                   Smallest, Largest);
    bring(bounds.center(), QPointF(size.width(), size.height()) / 2);
}

void GraphView::intoBounds(const QRectF &bounds, const QSizeF &size)
{
    const auto inside = [](double seen, double room, double low, double high) {
        return high - low <= room ? (low + high - room) / 2 : std::clamp(seen, low, high - room);
    };
    corner = {inside(corner.x(), size.width() / scale, bounds.left(), bounds.right()),
              inside(corner.y(), size.height() / scale, bounds.top(), bounds.bottom())};
}

void GraphView::keepOn(const QRectF &bounds, const QSizeF &size)
{
    const QPointF middle = QPointF(size.width(), size.height()) / 2;
    const QPointF seen = toPicture(middle);
    bring({std::clamp(seen.x(), bounds.left(), bounds.right()),
           std::clamp(seen.y(), bounds.top(), bounds.bottom())},
          middle);
}

void GraphView::reveal(const QRectF &room, const QSizeF &size)
{
    constexpr double margin = 24;
    const QRectF seen = toView(room).adjusted(-margin, -margin, margin, margin);
    corner -= QPointF(moveInto(seen.left(), seen.right(), size.width()),
                      moveInto(seen.top(), seen.bottom(), size.height())) /
              scale;
}
