#include "widgets/FlowLayout.h"

#include <QWidget>

FlowLayout::FlowLayout(QWidget *parent) : QLayout(parent) {}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.emplace_back(item);
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<size_t>(index)].get() : nullptr;
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    const auto position = m_items.begin() + index;
    QLayoutItem *item = position->release();
    m_items.erase(position);
    return item;
}

int FlowLayout::heightForWidth(int width) const
{
    return flow(QRect(0, 0, width, 0), Action::Measure);
}

// One row of everything: what the layout would like best.
QSize FlowLayout::sizeHint() const
{
    const QMargins margins = contentsMargins();
    int width = margins.left() + margins.right() - spacing();
    int height = 0;
    for (const auto &item : m_items) {
        width += item->sizeHint().width() + spacing();
        height = qMax(height, item->sizeHint().height());
    }
    return {width, height + margins.top() + margins.bottom()};
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const auto &item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size.grownBy(contentsMargins());
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    flow(rect, Action::Place);
}

// Returns the height that the rows take.
int FlowLayout::flow(const QRect &rect, Action action) const
{
    const QRect area = rect.marginsRemoved(contentsMargins());
    size_t first = 0;
    int x = 0;
    int y = 0;
    int rowHeight = 0;
    for (size_t i = 0; i < m_items.size(); ++i) {
        const QSize size = m_items[i]->sizeHint();
        if (i > first && x + size.width() > area.width()) {
            if (action == Action::Place)
                placeRow(first, i, area.topLeft() + QPoint(0, y), rowHeight);
            y += rowHeight + spacing() / 2;
            first = i;
            x = 0;
            rowHeight = 0;
        }
        x += size.width() + spacing();
        rowHeight = qMax(rowHeight, size.height());
    }
    if (action == Action::Place)
        placeRow(first, m_items.size(), area.topLeft() + QPoint(0, y), rowHeight);
    return y + rowHeight + rect.height() - area.height();
}

void FlowLayout::placeRow(size_t first, size_t last, const QPoint &topLeft, int height) const
{
    int x = topLeft.x();
    for (size_t i = first; i < last; ++i) {
        const QSize size = m_items[i]->sizeHint();
        m_items[i]->setGeometry(
            {x, topLeft.y() + (height - size.height()) / 2, size.width(), size.height()});
        x += size.width() + spacing();
    }
}
