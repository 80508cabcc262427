#include "editor/Waves.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace
{
constexpr QSizeF WaveSize(6, 4); // one wave and the room that it takes
} // namespace

// One wave to be laid side by side, for drawing each would take long on a page full of them.
Waves::Waves(const QColor &colour, double pixelRatio) : m_wave((WaveSize * pixelRatio).toSize())
{
    m_wave.setDevicePixelRatio(pixelRatio);
    m_wave.fill(Qt::transparent);
    QPainter painter(&m_wave);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.1));
    const double middle = WaveSize.height() / 2;
    const double quarter = WaveSize.width() / 4;
    QPainterPath path(QPointF(-quarter, middle - 1));
    for (double x = quarter, side = 1; x <= WaveSize.width() + quarter;
         x += 2 * quarter, side = -side)
        path.lineTo(x, middle + side);
    painter.drawPath(path);
}

void Waves::paintUnder(QPainter &painter, const QRectF &piece) const
{
    painter.drawTiledPixmap(QRectF(piece.left(),
                                   std::floor(piece.bottom()) - WaveSize.height() / 2 - 1,
                                   piece.width(), WaveSize.height()),
                            m_wave);
}
