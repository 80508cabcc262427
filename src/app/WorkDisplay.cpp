#include "app/WorkDisplay.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>

namespace
{
// Milliseconds. Work that is over sooner than this needs no bar, which would only flash.
constexpr qint64 PatienceOfAuthor = 500;
constexpr qint64 BetweenPaints = 100;
} // namespace

// What is hidden keeps its place: nothing around it moves, also as no layout happens while no
// events are let in.
WorkDisplay::WorkDisplay(QLabel &caption, QProgressBar &bar, QWidget &box)
    : m_caption(caption), m_bar(bar), m_box(box)
{
    for (QWidget *widget : {static_cast<QWidget *>(&bar), &box}) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(policy);
    }
    m_bar.hide();
}

void WorkDisplay::begin(const QString &caption)
{
    m_focusAfterwards = m_box.hasFocus();
    m_caption.setText(caption);
    m_box.hide();
    m_sinceBegin.start();
    paintWindows();
}

void WorkDisplay::progress(int done, int total)
{
    if (m_sincePaint.elapsed() < BetweenPaints)
        return;
    m_bar.setRange(0, total);
    m_bar.setValue(done);
    m_bar.setVisible(m_sinceBegin.elapsed() > PatienceOfAuthor);
    paintWindows();
}

void WorkDisplay::end()
{
    m_bar.hide();
    m_box.show();
    if (m_focusAfterwards)
        m_box.setFocus();
}

// All of them: what another program's window uncovers stays grey until somebody paints it.
void WorkDisplay::paintWindows()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible())
            window->repaint();
    }
    m_sincePaint.start();
}
