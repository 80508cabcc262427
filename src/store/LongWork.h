#pragma once

#include "store/AdventureCommands.h"

// Shows a caption in the place of the editing box while it lives.
class LongWork
{
public:
    LongWork(AdventureView &view, const QString &caption) : m_view(view)
    {
        m_view.longWorkBegins(caption);
    }
    ~LongWork() { m_view.longWorkEnds(); }
    void progress(int done, int total) { m_view.longWorkProgress(done, total); }
    LongWork(const LongWork &) = delete;
    LongWork &operator=(const LongWork &) = delete;

private:
    AdventureView &m_view;
};
