#pragma once

#include "store/AdventureCommands.h"

class WorkBar;

// The window's view for the work of a dialog in front of it, which covers what the window shows of
// long work: the bar of the dialog shows it as well.
class WorkInDialog : public AdventureView
{
public:
    WorkInDialog(AdventureView &window, WorkBar &bar);

    RichTextBox &editingBox() override;
    void LoadParg(int n) override;
    void adventureReplaced() override;
    void longWorkBegins(const QString &caption) override;
    void longWorkProgress(int done, int total) override;
    void longWorkEnds() override;
    void announce(const QString &text) override;

private:
    AdventureView &m_window;
    WorkBar &m_bar;
};
