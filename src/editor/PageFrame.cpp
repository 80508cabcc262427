#include "editor/PageFrame.h"

#include <QPainter>
#include <QPalette>
#include <algorithm>

namespace
{
constexpr int largestPadding = 24;
constexpr int narrowestPadded = 240; // a box as narrow as this has no padding to spare
constexpr int largestGapAbove = 12;

// The page's colour moved a little towards that of its text, so that the two differ in light and
// dark palettes alike.
QColor surroundings(const QPalette &palette)
{
    constexpr double share = 0.07;
    const QColor page = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const auto mixed = [](int from, int towards) {
        return qRound(from + (towards - from) * share);
    };
    return {mixed(page.red(), text.red()), mixed(page.green(), text.green()),
            mixed(page.blue(), text.blue())};
}
} // namespace

PageFrame::PageFrame(int box, int text)
    : m_padding(std::clamp((box - narrowestPadded) / 8, 0, largestPadding)),
      m_side(std::max(0, (box - text - 2 * m_padding) / 2))
{
}

QMargins PageFrame::margins() const
{
    const int above = std::min(m_side, largestGapAbove);
    return {m_side + m_padding, above + m_padding, m_side + m_padding, 0};
}

void PageFrame::paint(QPainter &painter, const QRect &box, const QRect &viewport,
                      const QPalette &palette) const
{
    painter.fillRect(box, surroundings(palette));
    painter.fillRect(viewport.adjusted(-m_padding, -m_padding, m_padding, 0),
                     palette.color(QPalette::Base));
}
