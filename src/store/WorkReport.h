#pragma once

class QString;

// Whoever tells the author how work goes: the main window, a dialog in front of it, or nobody.
class WorkReport
{
public:
    WorkReport() = default;
    virtual ~WorkReport() = default;
    WorkReport(const WorkReport &) = delete;
    WorkReport &operator=(const WorkReport &) = delete;

    // Around long work, see LongWork. The caption stands in the place of the editing box meanwhile.
    // Only work that leaves nothing half done may be stopped.
    enum class Stopping { Never, OnEscape };
    virtual void begin(const QString &caption, Stopping stopping) = 0;
    // Whether the author wants to stop.
    virtual bool progress(int done, int total) = 0;
    virtual void end() = 0;

    // Tells in passing how a command ended, with nothing to click away.
    virtual void announce(const QString &text) = 0;
};
