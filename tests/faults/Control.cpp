#include "Control.h"

Tally naiveControl(const ToolRun &run, const Files &start, const Mode &mode)
{
    const QString adventure = run.folder() + QStringLiteral("/a.usm");
    const QString other = run.folder() + QStringLiteral("/b.usm");
    const QByteArray old = start[QStringLiteral("a.usm")];
    const QByteArray saved = start[QStringLiteral("b.usm")];
    Tally tally;
    for (int call = 1;; ++call) {
        restore(run.folder(), start);
        const RunResult result = run.program(QStringLiteral(USMIRA_NAIVE), {adventure, other},
                                             {mode.fault, mode.error, call});
        if (!result.isKilled() && result.calls < call)
            return tally;
        ++tally.tried;
        const QByteArray found = filesIn(run.folder())[QStringLiteral("a.usm")];
        if (found == old || found == saved)
            ++tally.survived;
    }
}
