#pragma once

#include <QPixmap>

class QColor;
class QPainter;
class QRectF;

// The wavy line under what is doubtful in a text.
class Waves
{
public:
    Waves(const QColor &colour, double pixelRatio);

    // Under a piece of a line of text.
    void paintUnder(QPainter &painter, const QRectF &piece) const;

private:
    QPixmap m_wave;
};
