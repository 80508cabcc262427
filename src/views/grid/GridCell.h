#pragma once

#include "store/Variables.h"
#include "views/ParagraphStatuses.h"
#include "views/grid/GridShades.h"

#include <QFont>
#include <QRectF>
#include <QString>
#include <optional>

class QPainter;

// What a cell of the grid shows.
struct GridCell {
    int number = 0; // 0: none, as in the legend
    quint8 status = Empty;
    bool fixed = false;
    bool current = false;
    std::optional<double> share{}; // of many readings that come here: shown instead of the status
};

// Of number n, 1..2000.
GridCell gridCell(const Variables &variables, const ParagraphStatuses &statuses, int n);
// The same with its share, if it is written; of null as above.
GridCell shadedCell(const GridCell &cell, const GridShades *shades);

// "26 : Tapé, Fixe, Actuel".
QString cellWords(const GridCell &cell);

// Paints cells in the prescribed colours, which are the same on light and dark windows.
class CellPainter
{
public:
    // font is the one of the window; its letters are made small enough for the cells.
    CellPainter(QPainter &painter, const QFont &font);

    // origin in twips, on a painter whose units are Qt's pixels.
    void paint(const GridCell &cell, const QPoint &origin) const;

    // The frame around the cell that keys act on.
    void paintFocus(const QPoint &origin, const QColor &colour) const;

private:
    void fillBox(const QRectF &box, const QColor &colour) const;
    void hatch(const QRectF &box) const;

    QPainter &m_painter;
    QFont m_numberFont;
    QFont m_letterFont;
};
