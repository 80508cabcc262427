#pragma once

#include <QElapsedTimer>

class QLabel;
class QString;
class QWidget;
class WorkBar;

// What the main window shows during long work: a caption in the place of the editing box, and a
// bar under it once the work has lasted a while. It paints, but lets no event in, so that the
// author can start nothing in the middle.
class WorkDisplay
{
public:
    WorkDisplay(QLabel &caption, WorkBar &bar, QWidget &box);

    void begin(const QString &caption);
    void progress(int done, int total);

    // The box is there again, and has the focus if it had it before.
    void end();

private:
    void paintWindows();

    QLabel &m_caption;
    WorkBar &m_bar;
    QWidget &m_box;
    QElapsedTimer m_sincePaint;
    bool m_focusAfterwards = false;
};
