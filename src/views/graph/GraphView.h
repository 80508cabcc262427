#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

// Which part of a picture a window shows, and how large. Points of the view are pixels from the
// window's upper left corner.
struct GraphView {
    static constexpr double Largest = 4;
    static constexpr double Smallest = 0.002;

    double scale = 1;
    QPointF corner; // of the picture, at the view's upper left

    QPointF toPicture(const QPointF &point) const { return corner + point / scale; }
    QPointF toView(const QPointF &point) const { return (point - corner) * scale; }
    QRectF toPicture(const QRectF &room) const
    {
        return {toPicture(room.topLeft()), room.size() / scale};
    }
    QRectF toView(const QRectF &room) const
    {
        return {toView(room.topLeft()), room.size() * scale};
    }
    QTransform transform() const;

    // What the picture shows at a point of the view stays there.
    void zoom(double factor, const QPointF &at);

    // All of it in the middle, but no larger than it is.
    void fit(const QRectF &bounds, const QSizeF &size);

    // A point of the picture comes to a point of the view.
    void bring(const QPointF &point, const QPointF &at) { corner = point - at / scale; }

    // Moves what lies beyond the picture's edges out of sight again, where the picture is larger.
    void intoBounds(const QRectF &bounds, const QSizeF &size);

    // Moves no further than to see some of the picture in the middle of the view.
    void keepOn(const QRectF &bounds, const QSizeF &size);

    // Moves as little as shows a part of the picture.
    void reveal(const QRectF &room, const QSizeF &size);

    bool operator==(const GraphView &) const = default;
};
