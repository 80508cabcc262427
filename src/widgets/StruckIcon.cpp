#include "widgets/StruckIcon.h"

#include <QPainter>

namespace
{
QPixmap struckOut(QPixmap pixmap, int side, const QColor &color)
{
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const double edge = side / 8.0;
    // A gap beside the line keeps it apart from what it crosses.
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.setPen(QPen(color, side / 5.0));
    painter.drawLine(QPointF(edge, edge), QPointF(side - edge, side - edge));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setPen(QPen(color, side / 16.0));
    painter.drawLine(QPointF(edge, edge), QPointF(side - edge, side - edge));
    return pixmap;
}
} // namespace

QIcon struckOut(const QIcon &icon, const QColor &color)
{
    QIcon result;
    for (const int side : {22, 33, 44}) {
        const QPixmap pixmap = icon.pixmap(QSize(side, side), 1.0);
        if (!pixmap.isNull())
            result.addPixmap(struckOut(pixmap, side, color));
    }
    return result;
}
