#include "widgets/WorkInDialog.h"

#include "widgets/WorkBar.h"

WorkInDialog::WorkInDialog(WorkReport &window, WorkBar &bar) : m_window(window), m_bar(bar) {}

// The dialog's bar comes first: the window paints all windows.
void WorkInDialog::begin(const QString &caption, Stopping stopping)
{
    m_bar.begin(stopping == Stopping::OnEscape);
    m_window.begin(caption, stopping);
}

bool WorkInDialog::progress(int done, int total)
{
    m_bar.progress(done, total);
    return m_window.progress(done, total);
}

void WorkInDialog::end()
{
    m_window.end();
    m_bar.hide();
}

void WorkInDialog::announce(const QString &text)
{
    m_window.announce(text);
}
