#pragma once

#include "views/graph/GraphDrawing.h"

#include <QColor>
#include <QPainterPath>

class QPainter;
class QPalette;

// The colours around those of the statuses, which are the same everywhere.
struct GraphLook {
    QColor page;
    QColor card; // what a number stands on
    QColor ink;
    QColor edge;
    QColor strongOut; // where the pointed paragraph leads
    QColor strongIn;  // what leads to it

    static GraphLook of(const QPalette &palette);
    static GraphLook paper();
};

// Paints a picture of references on any painter: the screen, a file. One unit is one of the
// painter's, whose transformation scales and moves the picture; where nodes come out too small for
// their numbers they become coloured dots. The drawing must outlive it, unchanged.
class GraphPainter
{
public:
    GraphPainter(const GraphDrawing &drawing, const GraphLook &look);

    // What touches the visible part of the picture. Leaves the page to the caller.
    void paint(QPainter &painter, const QRectF &visible) const;

    // Over that, the references of one node, where it leads and what leads to it told apart.
    void paintStrong(QPainter &painter, int node) const;

    // The frame of the node that has the keyboard.
    void paintFocus(QPainter &painter, int node) const;

    const GraphLook &look() const { return m_look; }

private:
    struct Curve {
        QPainterPath path;
        QRectF box;
    };

    void paintEdges(QPainter &painter, const QRectF &visible, double scale) const;
    void paintLabels(QPainter &painter, const QRectF &visible) const;
    void paintStrongEdge(QPainter &painter, const GraphEdge &edge, const QColor &colour,
                         Qt::PenStyle style) const;

    const GraphDrawing &m_drawing;
    GraphLook m_look;
    QList<Curve> m_curves; // of the edges, in their order
};
