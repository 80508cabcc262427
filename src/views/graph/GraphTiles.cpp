#include "views/graph/GraphTiles.h"

#include "views/graph/GraphPainter.h"

#include <QElapsedTimer>
#include <QPainter>
#include <cmath>

namespace
{
constexpr int Side = 128;        // pixels of the view
constexpr int KeptAround = 4;    // tiles on each side of those in sight
constexpr qsizetype Many = 1600; // 100 MB where a pixel of the view is one of the device

// The view's corner in pixels, on a whole one of the device: tiles are copied and not smoothed.
QPointF cornerOf(const GraphTiles::Frame &frame)
{
    const auto whole = [&frame](double place) {
        return std::round(place * frame.view.scale * frame.pixelRatio) / frame.pixelRatio;
    };
    return {whole(frame.view.corner.x()), whole(frame.view.corner.y())};
}

QRect tilesIn(const GraphTiles::Frame &frame)
{
    const auto tileOf = [](const QPointF &point) {
        return QPoint(static_cast<int>(std::floor(point.x() / Side)),
                      static_cast<int>(std::floor(point.y() / Side)));
    };
    const QPointF corner = cornerOf(frame);
    return {tileOf(corner),
            tileOf(corner + QPointF(frame.size.width() - 1, frame.size.height() - 1))};
}

QImage emptyImage(const QSize &size, double pixelRatio, const QColor &page)
{
    QImage image((QSizeF(size) * pixelRatio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(page);
    return image;
}

QImage paintedTile(const GraphPainter &graph, const QPoint &at, const GraphTiles::Frame &frame)
{
    QImage image = emptyImage({Side, Side}, frame.pixelRatio, graph.look().page);
    QPainter painter(&image);
    const double scale = frame.view.scale;
    painter.translate(-at * Side);
    painter.scale(scale, scale);
    const QRectF room(QPointF(at * Side) / scale, QSizeF(Side, Side) / scale);
    graph.paint(painter, room);
    return image;
}
} // namespace

void GraphTiles::clear()
{
    m_tiles.clear();
    m_before = {};
}

bool GraphTiles::paint(QPainter &target, const GraphPainter &graph, const Frame &frame,
                       Missing missing, int milliseconds)
{
    const bool rescaled = m_shown.view.scale != frame.view.scale;
    if (m_shown.pixelRatio != frame.pixelRatio)
        clear();
    else if (rescaled && !m_tiles.isEmpty())
        keepBefore(graph.look().page);
    if (rescaled && missing == Missing::Leave) {
        paintBefore(target, frame.view);
        return false;
    }
    m_shown = frame;
    const bool whole = makeTiles(graph, frame, milliseconds);
    if (!whole)
        paintBefore(target, frame.view);
    paintTiles(target, frame);
    if (whole)
        m_before = {};
    return whole;
}

void GraphTiles::keepBefore(const QColor &page)
{
    QImage seen = emptyImage(m_shown.size, m_shown.pixelRatio, page);
    QPainter painter(&seen);
    paintBefore(painter, m_shown.view);
    paintTiles(painter, m_shown);
    painter.end();
    m_before = seen;
    m_beforeFrame = m_shown;
    m_tiles.clear();
}

void GraphTiles::paintBefore(QPainter &target, const GraphView &view) const
{
    if (m_before.isNull())
        return;
    const QRectF seen(QPointF(), m_beforeFrame.size);
    target.drawImage(view.toView(m_beforeFrame.view.toPicture(seen)), m_before);
}

void GraphTiles::paintTiles(QPainter &target, const Frame &frame) const
{
    const QRect wanted = tilesIn(frame);
    const QPointF corner = cornerOf(frame);
    for (auto tile = m_tiles.begin(); tile != m_tiles.end(); ++tile)
        if (wanted.contains(tile.key()))
            target.drawImage(tile.key() * Side - corner, tile.value());
}

bool GraphTiles::makeTiles(const GraphPainter &graph, const Frame &frame, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    const QRect wanted = tilesIn(frame);
    bool painted = false;
    for (int row = wanted.top(); row <= wanted.bottom(); ++row) {
        for (int column = wanted.left(); column <= wanted.right(); ++column) {
            const QPoint at(column, row);
            if (m_tiles.contains(at))
                continue;
            if (painted && timer.elapsed() >= milliseconds)
                return false;
            m_tiles.insert(at, paintedTile(graph, at, frame));
            painted = true;
        }
    }
    if (painted)
        forgetFar(wanted);
    return true;
}

void GraphTiles::forgetFar(const QRect &wanted)
{
    if (m_tiles.size() <= Many)
        return;
    const QRect near = wanted.adjusted(-KeptAround, -KeptAround, KeptAround, KeptAround);
    m_tiles.removeIf([&near](const auto &tile) { return !near.contains(tile.key()); });
}
