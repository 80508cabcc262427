#pragma once

#include "app/EscapeWatch.h"
#include "store/WorkReport.h"

#include <QElapsedTimer>
#include <optional>

class QLabel;
class QStatusBar;
class QWidget;
class WorkBar;

// What the main window shows during long work: a caption in the place of the editing box, and a
// bar under it once the work has lasted a while. It paints, but lets no event in, so that the
// author can start nothing in the middle; of work that may be stopped, Escape alone.
class WorkDisplay : public WorkReport
{
public:
    WorkDisplay(QLabel &caption, WorkBar &bar, QWidget &box, QStatusBar &statusBar);

    bool isUnderWay() const { return m_underWay; }

    void begin(const QString &caption, Stopping stopping) override;
    bool progress(int done, int total) override;

    // The box is there again, and has the focus if it had it before.
    void end() override;

    void announce(const QString &text) override;

private:
    void paintWindows();

    QLabel &m_caption;
    WorkBar &m_bar;
    QWidget &m_box;
    QStatusBar &m_statusBar;
    QElapsedTimer m_sincePaint;
    std::optional<EscapeWatch> m_escape; // while the work may be stopped
    bool m_underWay = false;
    bool m_focusAfterwards = false;
};
