#include "convert/html/HtmlCommands.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"

#include <QCoreApplication>
#include <optional>

namespace
{
QString caption()
{
    return QCoreApplication::translate("HtmlCommands", "Conversion...");
}
} // namespace

bool exportToOneFile(const ExportCommand &command, const ExportRequest &request,
                     const HtmlCodes &codes)
{
    if (!command.mayReplace(request.place))
        return false;
    std::optional<SafeFile> file;
    try {
        file.emplace(request.place, Durability::Full, Links::Follow);
    } catch (const FileError &error) {
        command.tellNothingWritten(error);
        return false;
    }
    const auto write = [&](const ExportRange &range, const Progress &progress) {
        return exportOneFile(command.variables(), range, codes, *file, progress);
    };
    return command.run(request, {caption(), write, {}});
}

bool exportToManyFiles(const ExportCommand &command, const ExportRequest &request,
                       const HtmlCodes &codes, const QString &prefix)
{
    const auto write = [&](const ExportRange &range, const Progress &progress) {
        return exportManyFiles(command.variables(), range, codes, request.place, prefix, progress);
    };
    return command.run(request, {caption(), write, {}});
}
