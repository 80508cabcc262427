#include "convert/WorkInDialog.h"

#include "widgets/WorkBar.h"

WorkInDialog::WorkInDialog(AdventureView &window, WorkBar &bar) : m_window(window), m_bar(bar) {}

RichTextBox &WorkInDialog::editingBox()
{
    return m_window.editingBox();
}

void WorkInDialog::LoadParg(int n)
{
    m_window.LoadParg(n);
}

void WorkInDialog::adventureReplaced()
{
    m_window.adventureReplaced();
}

// The dialog's bar comes first: the window paints all windows.
void WorkInDialog::longWorkBegins(const QString &caption)
{
    m_bar.begin();
    m_window.longWorkBegins(caption);
}

void WorkInDialog::longWorkProgress(int done, int total)
{
    m_bar.progress(done, total);
    m_window.longWorkProgress(done, total);
}

void WorkInDialog::longWorkEnds()
{
    m_window.longWorkEnds();
    m_bar.hide();
}

void WorkInDialog::announce(const QString &text)
{
    m_window.announce(text);
}
