#pragma once

#include "store/ParagraphArray.h"
#include "views/graph/BookLayers.h"

#include <QPointF>
#include <QSizeF>

// Places the paragraphs of layers, which go from left to right: each as near to the middle of its
// neighbours as its layer's order allows. Lengths are those of GraphDrawing.
class LayerPlacing
{
public:
    // Layers of more paragraphs than rows take several columns, filled row by row.
    LayerPlacing(const Layers &layers, int rows);

    // The number of rows with which layers come nearest to this ratio of width to height.
    static int rowsFor(const Layers &layers, double ratio);

    // The least number of rows with which layers are no wider than that.
    static int rowsWithin(const Layers &layers, double width);

    // The centres, the middle of the layers' height being 0 and the middle of the first column.
    ParagraphArray<QPointF, 2001> centres(const ReferenceWeb &web) const;

    // From the middle of the first column to that of the last, from the first row to the last.
    QSizeF size() const;

    // The middle of a layer.
    double middle(int layer) const;

private:
    qsizetype columns(int layer) const;

    const Layers &m_layers;
    int m_rows;
};
