#pragma once

#include "platform/Progress.h"
#include "store/WorkReport.h"

#include <exception>

// The author wants no more of the work under way. Whoever began it tells so.
class WorkStopped : public std::exception
{
public:
    const char *what() const noexcept override { return "stopped by the author"; }
};

// Work that is reported while this lives.
class LongWork
{
public:
    LongWork(WorkReport &report, const QString &caption,
             WorkReport::Stopping stopping = WorkReport::Stopping::Never)
        : m_report(report)
    {
        m_report.begin(caption, stopping);
    }
    ~LongWork() { m_report.end(); }
    LongWork(const LongWork &) = delete;
    LongWork &operator=(const LongWork &) = delete;

    // Throws WorkStopped where the work may be stopped and the author wants it.
    Progress progress()
    {
        return [this](int done, int total) {
            if (m_report.progress(done, total))
                throw WorkStopped();
        };
    }

private:
    WorkReport &m_report;
};
