#include "app/WorkDisplay.h"

#include "widgets/WorkBar.h"

#include <QApplication>
#include <QLabel>
#include <QStatusBar>

namespace
{
constexpr qint64 BetweenPaints = 100;    // milliseconds
constexpr int AnnouncementShown = 15000; // milliseconds
} // namespace

// What is hidden keeps its place: nothing around it moves, also as no layout happens while no
// events are let in.
WorkDisplay::WorkDisplay(QLabel &caption, WorkBar &bar, QWidget &box, QStatusBar &statusBar)
    : m_caption(caption), m_bar(bar), m_box(box), m_statusBar(statusBar)
{
    QSizePolicy policy = box.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    box.setSizePolicy(policy);
}

void WorkDisplay::begin(const QString &caption, Stopping stopping)
{
    const bool stoppable = stopping == Stopping::OnEscape;
    m_underWay = true;
    m_focusAfterwards = m_box.hasFocus();
    m_caption.setText(caption);
    m_box.hide();
    m_bar.begin(stoppable);
    if (stoppable)
        m_escape.emplace();
    paintWindows();
}

bool WorkDisplay::progress(int done, int total)
{
    if (m_sincePaint.elapsed() < BetweenPaints)
        return false;
    m_bar.progress(done, total);
    paintWindows();
    return m_escape && m_escape->look();
}

void WorkDisplay::end()
{
    m_bar.hide();
    m_box.show();
    if (m_focusAfterwards)
        m_box.setFocus();
    m_escape.reset();
    m_underWay = false;
}

void WorkDisplay::announce(const QString &text)
{
    m_statusBar.showMessage(text, AnnouncementShown);
}

// All of them: what another window uncovers, also a file dialog that has just closed, shows that
// window until somebody paints it. Painting a window does not include the controls that fill their
// own background.
void WorkDisplay::paintWindows()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (!window->isVisible())
            continue;
        const QList<QWidget *> controls = window->findChildren<QWidget *>();
        for (QWidget *control : controls)
            control->update();
        window->repaint();
    }
    m_sincePaint.start();
}
