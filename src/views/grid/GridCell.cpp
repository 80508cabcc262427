#include "views/grid/GridCell.h"

#include "platform/Twips.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>

namespace
{
// A rectangle by its edges in twips from the origin of a cell.
QRectF box(const QPoint &origin, int left, int top, int right, int bottom)
{
    return QRectF(QPointF(origin.x() + left, origin.y() + top) / Twips::PerPixel,
                  QPointF(origin.x() + right, origin.y() + bottom) / Twips::PerPixel);
}

// The largest letters, up to the given height, in which text is at most so wide; all in pixels.
QFont fitting(QFont font, int height, const QString &text, double width)
{
    constexpr int smallest = 6;
    for (int size = height; size >= smallest; --size) {
        font.setPixelSize(size);
        if (QFontMetricsF(font).horizontalAdvance(text) <= width)
            break;
    }
    return font;
}
} // namespace

GridCell gridCell(const Variables &variables, const ParagraphStatuses &statuses, int n)
{
    return {n, statuses.status.at(n), variables.Unmixable.at(n) == 1,
            n == variables.CurrentParagraph};
}

GridCell shadedCell(const GridCell &cell, const GridShades *shades)
{
    GridCell shaded = cell;
    if (shades != nullptr && cell.status != Empty && cell.status != Reserved)
        shaded.share = shades->at(cell.number);
    return shaded;
}

QString cellWords(const GridCell &cell)
{
    QStringList words{statusName(cell.status)};
    if (cell.fixed)
        words.append(fixedName());
    if (cell.current)
        words.append(statusName(Current));
    if (cell.share)
        words.append(shadeWords(*cell.share));
    return QCoreApplication::translate("GridCell", "%1 : %2")
        .arg(cell.number)
        .arg(words.join(QStringLiteral(", ")));
}

CellPainter::CellPainter(QPainter &painter, const QFont &font)
    : m_painter(painter), m_numberFont(fitting(font, 12, QStringLiteral("2000"), 26)),
      m_letterFont(fitting(font, 10, QStringLiteral("M"), 8))
{
}

void CellPainter::paint(const GridCell &cell, const QPoint &origin) const
{
    if (cell.current)
        fillBox(box(origin, -30, -30, 615, 360), statusColour(Current));
    const QRectF body = box(origin, 30, 30, 585, 330);
    fillBox(body, cell.share ? shadeColour(*cell.share) : statusColour(cell.status));
    if (cell.share && *cell.share == 0)
        hatch(body);
    const QColor ink = cell.share ? inkUpon(*cell.share) : QColor(Qt::black);
    if (cell.fixed)
        m_painter.fillRect(box(origin, 60, 270, 360, 300), ink);
    m_painter.setPen(ink);
    m_painter.setFont(m_letterFont);
    m_painter.drawText(box(origin, 60, 60, 180, 270), Qt::AlignLeft | Qt::AlignVCenter,
                       statusLetter(cell.status));
    if (cell.number == 0)
        return;
    m_painter.setFont(m_numberFont);
    m_painter.drawText(box(origin, 60, 60, 555, 270), Qt::AlignRight | Qt::AlignVCenter,
                       QString::number(cell.number));
}

void CellPainter::paintFocus(const QPoint &origin, const QColor &colour) const
{
    constexpr double thickness = 2;
    QPen pen(colour, thickness);
    pen.setJoinStyle(Qt::MiterJoin);
    m_painter.setPen(pen);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(box(origin, -45, -45, 630, 375));
}

// The number stands on a plain ground.
void CellPainter::hatch(const QRectF &box) const
{
    constexpr double plain = 9; // pixels of the height that stay so
    m_painter.fillRect(box.adjusted(1, 1, -1, -plain), QBrush(Qt::gray, Qt::BDiagPattern));
}

// A filled box and a smaller one in it are sharp at any scale, where a line may fall between dots.
void CellPainter::fillBox(const QRectF &outline, const QColor &colour) const
{
    m_painter.fillRect(outline, Qt::black);
    m_painter.fillRect(outline.adjusted(1, 1, -1, -1), colour);
}
