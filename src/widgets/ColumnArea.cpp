#include "widgets/ColumnArea.h"

#include <QEvent>
#include <QScrollBar>

ColumnArea::ColumnArea(QWidget *parent) : QScrollArea(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
}

QSize ColumnArea::sizeHint() const
{
    return {neededWidth(), QScrollArea::sizeHint().height()};
}

QSize ColumnArea::minimumSizeHint() const
{
    return {neededWidth(), QScrollArea::minimumSizeHint().height()};
}

// What is held asks for its width only once it is shown, and for another when its font changes; the
// layout around must hear of both.
bool ColumnArea::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() &&
        (event->type() == QEvent::Show || event->type() == QEvent::LayoutRequest))
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

int ColumnArea::neededWidth() const
{
    const int content = widget() != nullptr ? widget()->minimumSizeHint().width() : 0;
    return content + verticalScrollBar()->sizeHint().width();
}
