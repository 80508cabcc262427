#include "convert/html/HtmlCommands.h"

#include "convert/ExportTarget.h"
#include "platform/Failures.h"
#include "platform/SafeFile.h"
#include "store/LongWork.h"

#include <optional>

namespace
{
using Export = std::function<int(const ExportRange &, const Progress &)>;

bool run(Prompts &prompts, AdventureView &view, const ExportRange &range, const QString &place,
         const Export &write)
{
    int written = 0;
    const bool done = reportingFailures(prompts, [&] {
        LongWork work(view, QStringLiteral("Conversion..."));
        written = write(range, [&work](int part, int total) { work.progress(part, total); });
        return true;
    });
    if (done)
        announceExport(view, written, place);
    return done;
}
} // namespace

bool exportToOneFile(const Variables &variables, Prompts &prompts, AdventureView &view,
                     double first, double second, const HtmlCodes &codes, const QString &path)
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
    return file && run(prompts, view, exportRange(first, second), path,
                       [&](const ExportRange &range, const Progress &progress) {
                           return exportOneFile(variables, range, codes, *file, progress);
                       });
}

bool exportToManyFiles(const Variables &variables, Prompts &prompts, AdventureView &view,
                       double first, double second, const HtmlCodes &codes, const QString &folder,
                       const QString &prefix)
{
    return run(prompts, view, exportRange(first, second), folder,
               [&](const ExportRange &range, const Progress &progress) {
                   return exportManyFiles(variables, range, codes, folder, prefix, progress);
               });
}
