#pragma once

#include <QElapsedTimer>
#include <QProgressBar>

// A bar that shows how far long work is. It appears only once the work has lasted a while: one that
// is over sooner would only make it flash. Hidden it keeps its place, so that nothing around it
// moves, also as no layout happens while no events are let in.
class WorkBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit WorkBar(QWidget *parent = nullptr);

    void begin(bool stoppable);
    void progress(int done, int total);

    // Room for all that it ever says, as no layout happens meanwhile.
    QSize sizeHint() const override;

private:
    static QString stoppableFormat();

    QElapsedTimer m_sinceBegin;
};
