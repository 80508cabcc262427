#pragma once

#include "store/WorkReport.h"

class WorkBar;

// Reports the work of a dialog that covers what the window behind it shows of long work: the bar
// of the dialog shows it as well.
class WorkInDialog : public WorkReport
{
public:
    WorkInDialog(WorkReport &window, WorkBar &bar);

    void begin(const QString &caption, Stopping stopping) override;
    bool progress(int done, int total) override;
    void end() override;
    void announce(const QString &text) override;

private:
    WorkReport &m_window;
    WorkBar &m_bar;
};
