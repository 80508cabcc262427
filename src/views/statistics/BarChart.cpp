#include "views/statistics/BarChart.h"

#include "widgets/Shade.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace
{
constexpr int Space = 4; // pixels between the parts of the chart
constexpr double Faint = 0.25;
constexpr qsizetype Nothing = -1;
} // namespace

BarChart::BarChart(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BarChart::setTitles(const QString &values, const QString &counted)
{
    m_values = values;
    m_counted = counted;
}

void BarChart::setBars(const QList<HistogramBar> &bars)
{
    if (bars == m_bars)
        return;
    m_bars = bars;
    point(Nothing);
}

QSize BarChart::sizeHint() const
{
    return {30 * fontMetrics().averageCharWidth(), 12 * fontMetrics().height()};
}

QSize BarChart::minimumSizeHint() const
{
    return {20 * fontMetrics().averageCharWidth(), 7 * fontMetrics().height()};
}

void BarChart::point(qsizetype bar)
{
    m_pointed = bar;
    setAccessibleDescription(bar == Nothing ? QString() : words(m_bars.at(bar)));
    update();
}

int BarChart::highest() const
{
    int highest = 0;
    for (const HistogramBar &bar : m_bars)
        highest = std::max(highest, bar.count);
    return highest;
}

QString BarChart::words(const HistogramBar &bar) const
{
    const QString values = bar.first == bar.last ? QString::number(bar.first)
                                                 : tr("%1 à %2").arg(bar.first).arg(bar.last);
    return tr("%1 %2 : %3 %4").arg(values, m_values).arg(bar.count).arg(m_counted);
}

// A line above for what is pointed at, two below for the values and what they are.
QRect BarChart::plot() const
{
    const int line = fontMetrics().height();
    const int numbers = fontMetrics().horizontalAdvance(QString::number(highest()));
    return rect().adjusted(numbers + 2 * Space, line + 2 * Space, -Space, -2 * line - 2 * Space);
}

// The bars share the width to the last pixel.
QRect BarChart::barRect(qsizetype bar) const
{
    const QRect all = plot();
    const auto edge = [&](qsizetype i) {
        return all.left() + static_cast<int>(i * all.width() / m_bars.size());
    };
    const int height =
        static_cast<int>(qint64{m_bars.at(bar).count} * all.height() / std::max(highest(), 1));
    const int least = m_bars.at(bar).count > 0 ? 1 : 0; // however few, they are seen
    const int gap = edge(bar + 1) - edge(bar) > 3 ? 1 : 0;
    QRect rect(QPoint(edge(bar), all.top()), QPoint(edge(bar + 1) - 1 - gap, all.bottom()));
    rect.setTop(all.bottom() + 1 - std::max(height, least));
    return rect;
}

void BarChart::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : shade(palette(), Faint));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    paintTitles(painter);
    if (!m_bars.isEmpty()) {
        paintScale(painter);
        paintBars(painter);
        paintValues(painter);
    }
}

void BarChart::paintTitles(QPainter &painter) const
{
    painter.setPen(palette().color(QPalette::Text));
    const QRect inside = rect().adjusted(Space, Space, -Space, -Space);
    const QString above = m_bars.isEmpty()       ? tr("Rien à montrer")
                          : m_pointed == Nothing ? m_counted
                                                 : words(m_bars.at(m_pointed));
    painter.drawText(inside, Qt::AlignTop | Qt::AlignLeft, above);
    painter.drawText(inside, Qt::AlignBottom | Qt::AlignRight, m_values);
}

void BarChart::paintScale(QPainter &painter) const
{
    const QRect all = plot();
    const int most = highest();
    for (const int count : {0, most / 2, most}) {
        const int y =
            all.bottom() + 1 - static_cast<int>(qint64{count} * all.height() / std::max(most, 1));
        painter.setPen(shade(palette(), Faint));
        painter.drawLine(all.left(), y, all.right(), y);
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(
            QRect(0, y - fontMetrics().height() / 2, all.left() - Space, fontMetrics().height()),
            Qt::AlignRight | Qt::AlignVCenter, QString::number(count));
    }
}

void BarChart::paintBars(QPainter &painter) const
{
    for (qsizetype bar = 0; bar < m_bars.size(); ++bar)
        painter.fillRect(barRect(bar),
                         palette().color(bar == m_pointed ? QPalette::Text : QPalette::Highlight));
}

// As many as there is room for, at equal distances.
void BarChart::paintValues(QPainter &painter) const
{
    const int width =
        fontMetrics().horizontalAdvance(QString::number(m_bars.last().first)) + 3 * Space;
    const auto fitting = std::max(plot().width() / width, 1);
    const qsizetype step = (m_bars.size() + fitting - 1) / fitting;
    painter.setPen(palette().color(QPalette::Text));
    for (qsizetype bar = 0; bar < m_bars.size(); bar += step) {
        const QRect place = barRect(bar);
        const QRect room(place.center().x() - width / 2, plot().bottom() + Space, width,
                         fontMetrics().height());
        painter.drawText(room, Qt::AlignCenter, QString::number(m_bars.at(bar).first));
    }
}

void BarChart::mouseMoveEvent(QMouseEvent *event)
{
    const QRect all = plot();
    const int x = event->position().toPoint().x();
    const bool inside = !m_bars.isEmpty() && all.left() <= x && x <= all.right();
    const qsizetype bar = inside ? (x - all.left()) * m_bars.size() / all.width() : Nothing;
    if (bar != m_pointed)
        point(bar);
}

void BarChart::leaveEvent(QEvent * /*event*/)
{
    point(Nothing);
}

void BarChart::keyPressEvent(QKeyEvent *event)
{
    const auto go = [this](qsizetype bar) {
        if (!m_bars.isEmpty())
            point(std::clamp<qsizetype>(bar, 0, m_bars.size() - 1));
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return go(m_pointed - 1);
    case Qt::Key_Right:
        return go(m_pointed + 1);
    case Qt::Key_Home:
        return go(0);
    case Qt::Key_End:
        return go(m_bars.size() - 1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void BarChart::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason && !m_bars.isEmpty())
        point(std::max<qsizetype>(m_pointed, 0));
}

void BarChart::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    point(Nothing);
}
