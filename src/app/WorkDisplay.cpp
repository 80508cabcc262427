#include "app/WorkDisplay.h"

#include "widgets/WorkBar.h"

#include <QApplication>
#include <QLabel>

namespace
{
constexpr qint64 BetweenPaints = 100; // milliseconds
} // namespace

// What is hidden keeps its place: nothing around it moves, also as no layout happens while no
// events are let in.
WorkDisplay::WorkDisplay(QLabel &caption, WorkBar &bar, QWidget &box)
    : m_caption(caption), m_bar(bar), m_box(box)
{
    QSizePolicy policy = box.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    box.setSizePolicy(policy);
}

void WorkDisplay::begin(const QString &caption)
{
    m_focusAfterwards = m_box.hasFocus();
    m_caption.setText(caption);
    m_box.hide();
    m_bar.begin();
    paintWindows();
}

void WorkDisplay::progress(int done, int total)
{
    if (m_sincePaint.elapsed() < BetweenPaints)
        return;
    m_bar.progress(done, total);
    paintWindows();
}

void WorkDisplay::end()
{
    m_bar.hide();
    m_box.show();
    if (m_focusAfterwards)
        m_box.setFocus();
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
