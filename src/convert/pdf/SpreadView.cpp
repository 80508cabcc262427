#include "convert/pdf/SpreadView.h"

#include <QPainter>
#include <algorithm>

namespace
{
constexpr double Border = 12; // around the spread, in pixels
} // namespace

SpreadView::SpreadView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize SpreadView::sizeHint() const
{
    return {520, 380};
}

QSize SpreadView::minimumSizeHint() const
{
    return {180, 140};
}

// A book of two sides begins on a right page.
std::pair<int, int> SpreadView::spreadOf(const BookPages &pages, int page)
{
    const int left = pages.setup().twoSided ? (page + 1) / 2 * 2 - 1 : page / 2 * 2;
    return {left, left + 1};
}

void SpreadView::showPages(std::shared_ptr<const BookPages> pages, int page)
{
    m_pages = std::move(pages);
    m_page = page;
    m_drawn = {};
    update();
}

void SpreadView::keepPicture()
{
    m_pages.reset();
}

void SpreadView::resizeEvent(QResizeEvent *event)
{
    m_drawn = {};
    QWidget::resizeEvent(event);
}

void SpreadView::paintEvent(QPaintEvent * /*event*/)
{
    if (m_drawn.isNull() && m_pages)
        draw();
    QPainter(this).drawPixmap(0, 0, m_drawn);
}

void SpreadView::draw()
{
    m_drawn = QPixmap(size() * devicePixelRatioF());
    m_drawn.setDevicePixelRatio(devicePixelRatioF());
    m_drawn.fill(Qt::transparent);
    QPainter painter(&m_drawn);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QSizeF paper = m_pages->paper();
    const double scale = std::max(1e-4, std::min((width() - 2 * Border) / (2 * paper.width()),
                                                 (height() - 2 * Border) / paper.height()));
    const QPointF corner(width() / 2.0 - paper.width() * scale,
                         (height() - paper.height() * scale) / 2);
    const auto [left, right] = spreadOf(*m_pages, m_page);
    drawPage(painter, left, corner, scale);
    drawPage(painter, right, corner + QPointF(paper.width() * scale, 0), scale);
}

// Paper is white on a dark desktop too.
void SpreadView::drawPage(QPainter &painter, int page, QPointF corner, double scale) const
{
    if (page < 0 || page >= m_pages->count())
        return;
    const QRectF paper(corner, m_pages->paper() * scale);
    painter.fillRect(paper, Qt::white);
    painter.save();
    painter.setClipRect(paper);
    painter.translate(corner);
    painter.scale(scale, scale);
    m_pages->draw(painter, page);
    painter.restore();
    painter.setPen(Qt::gray); // on white, and on any desktop
    painter.drawRect(paper);
}
