#include "convert/html/HtmlCommands.h"

#include "convert/ExportTarget.h"
#include "platform/Failures.h"
#include "platform/SafeFile.h"
#include "store/LongWork.h"

#include <optional>

namespace
{
using Export = std::function<int(const ExportRange &, const Progress &)>;

bool run(Prompts &prompts, WorkReport &report, const ExportRange &range, const QString &place,
         const Export &write)
{
    int written = 0;
    const auto convert = [&] {
        LongWork work(report, QStringLiteral("Conversion..."), WorkReport::Stopping::OnEscape);
        written = write(range, work.progress());
        return true;
    };
    const bool done = reportingFailures(prompts, [&] { return stoppable(report, convert); });
    if (done)
        announceExport(report, written, place);
    return done;
}
} // namespace

bool exportToOneFile(const Variables &variables, Prompts &prompts, WorkReport &report, double first,
                     double second, const HtmlCodes &codes, const QString &path)
{
    const bool allowed = reportingFailures(prompts, [&] {
        refuseOwnFiles(variables, path);
        return true;
    });
    std::optional<SafeFile> file;
    try {
        if (allowed)
            file.emplace(path, Durability::Full, Links::Follow);
    } catch (const FileError &) {
        return false;
    }
    return file && run(prompts, report, exportRange(first, second), path,
                       [&](const ExportRange &range, const Progress &progress) {
                           return exportOneFile(variables, range, codes, *file, progress);
                       });
}

bool exportToManyFiles(const Variables &variables, Prompts &prompts, WorkReport &report,
                       double first, double second, const HtmlCodes &codes, const QString &folder,
                       const QString &prefix)
{
    return run(prompts, report, exportRange(first, second), folder,
               [&](const ExportRange &range, const Progress &progress) {
                   return exportManyFiles(variables, range, codes, folder, prefix, progress);
               });
}
