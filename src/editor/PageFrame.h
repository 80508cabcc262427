#pragma once

#include <QMargins>
#include <QRect>

class QPainter;
class QPalette;

// How the page lies in its box: centred, with paper around its text and room around the paper where
// there is any. Pixels.
class PageFrame
{
public:
    PageFrame() = default;
    // The width of the box, and that of the text with the margins that the document itself has.
    PageFrame(int box, int text);

    // Between the box and what the document is painted on.
    QMargins margins() const;

    // What is to be seen around the document. viewport: where that is painted.
    void paint(QPainter &painter, const QRect &box, const QRect &viewport,
               const QPalette &palette) const;

private:
    int m_padding = 0; // paper on each side of the viewport and above it
    int m_side = 0;    // room beside the paper
};
