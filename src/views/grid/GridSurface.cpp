#include "views/grid/GridSurface.h"

#include "platform/Twips.h"
#include "views/grid/GridGeometry.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

using namespace GridGeometry;

GridSurface::GridSurface(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::TabFocus); // a click leaves the focus to what it shows
}

void GridSurface::attach(const Variables &variables, const ParagraphStatuses &statuses,
                         QScrollBar &bar)
{
    m_variables = &variables;
    m_statuses = &statuses;
    m_bar = &bar;
}

void GridSurface::setShades(const GridShades *shades)
{
    m_shades = shades;
    update();
}

GridCell GridSurface::cell(int n) const
{
    return shadedCell(gridCell(*m_variables, *m_statuses, n), m_shades);
}

QSize GridSurface::sizeHint() const
{
    constexpr int frame = 60; // below the last row, for the one around the current number
    return {Twips::toPixels(Margin + Columns * PitchAcross),
            Twips::toPixels(Margin + Rows * PitchDown + frame)};
}

void GridSurface::setFocusNumber(int n)
{
    m_focusNumber = std::clamp(n, 1, lastNumber());
    m_bar->setValue(scrollValueShowing(m_focusNumber, m_bar->value()));
    setAccessibleDescription(cellWords(cell(m_focusNumber)));
    update();
}

// Of all pages, the highest number with a cell.
int GridSurface::lastNumber() const
{
    return std::min(firstOnPage(m_bar->maximum()) + Cells - 1, Variables::LastParagraph);
}

bool GridSurface::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    showToolTip(*static_cast<QHelpEvent *>(event));
    return true;
}

void GridSurface::showToolTip(const QHelpEvent &event)
{
    const QPointF place = QPointF(event.pos()) * Twips::PerPixel;
    const std::optional<int> n = numberAt(place.x(), place.y(), m_bar->value());
    if (n)
        QToolTip::showText(event.globalPos(), cellWords(cell(*n)), this);
    else
        QToolTip::hideText();
}

void GridSurface::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const CellPainter cells(painter, font());
    const int first = firstOnPage(m_bar->value());
    const int last = std::min(first + Cells - 1, Variables::LastParagraph);
    for (int n = first; n <= last; ++n)
        cells.paint(cell(n), cellOrigin(n, m_bar->value()));
    if (hasFocus() && m_focusNumber >= first && m_focusNumber <= last)
        cells.paintFocus(cellOrigin(m_focusNumber, m_bar->value()),
                         palette().color(QPalette::Highlight));
}

void GridSurface::mousePressEvent(QMouseEvent *event)
{
    const QPointF place = event->position() * Twips::PerPixel;
    if (const std::optional<int> n = numberAt(place.x(), place.y(), m_bar->value()))
        setFocusNumber(*n);
    Q_EMIT pressed(*event, place.x(), place.y());
}

void GridSurface::wheelEvent(QWheelEvent *event)
{
    QCoreApplication::sendEvent(m_bar, event);
}

void GridSurface::keyPressEvent(QKeyEvent *event)
{
    if (!choose(*event) && !moveFocus(event->key()))
        QWidget::keyPressEvent(event);
}

bool GridSurface::choose(const QKeyEvent &event)
{
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!enter && event.key() != Qt::Key_Space)
        return false;
    // The numbers may have become fewer.
    setFocusNumber(m_focusNumber);
    if (enter && event.modifiers().testFlag(Qt::ShiftModifier))
        Q_EMIT wanted(m_focusNumber);
    else
        Q_EMIT previewWanted(m_focusNumber);
    return true;
}

bool GridSurface::moveFocus(int key)
{
    switch (key) {
    case Qt::Key_Left:
        setFocusNumber(m_focusNumber - 1);
        return true;
    case Qt::Key_Right:
        setFocusNumber(m_focusNumber + 1);
        return true;
    case Qt::Key_Up:
        if (m_focusNumber > Columns)
            setFocusNumber(m_focusNumber - Columns);
        return true;
    case Qt::Key_Down:
        if (m_focusNumber + Columns <= lastNumber())
            setFocusNumber(m_focusNumber + Columns);
        return true;
    case Qt::Key_PageUp:
        m_bar->setValue(m_bar->value() - Rows);
        setFocusNumber(m_focusNumber - Cells);
        return true;
    case Qt::Key_PageDown:
        m_bar->setValue(m_bar->value() + Rows);
        setFocusNumber(m_focusNumber + Cells);
        return true;
    case Qt::Key_Home:
        setFocusNumber(1);
        return true;
    case Qt::Key_End:
        setFocusNumber(std::max(m_statuses->maxShown, 1));
        return true;
    default:
        return false;
    }
}
