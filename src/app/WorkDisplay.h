#pragma once

#include <QElapsedTimer>

class QLabel;
class QProgressBar;
class QString;
class QWidget;

// What the main window shows during long work: a caption in the place of the editing box, and a
// bar under it once the work has lasted a while. It paints, but lets no event in, so that the
// author can start nothing in the middle.
class WorkDisplay
{
public:
    WorkDisplay(QLabel &caption, QProgressBar &bar, QWidget &box);

    void begin(const QString &caption);
    void progress(int done, int total);

    // The box is there again, and has the focus if it had it before.
    void end();

private:
    void paintWindows();

    QLabel &m_caption;
    QProgressBar &m_bar;
    QWidget &m_box;
    QElapsedTimer m_sinceBegin;
    QElapsedTimer m_sincePaint;
    bool m_focusAfterwards = false;
};
