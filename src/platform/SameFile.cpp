#include "platform/SameFile.h"

#include "platform/Errors.h"

#include <QFileInfo>
#include <filesystem>

namespace fs = std::filesystem;

namespace
{
fs::path systemPath(const QString &path)
{
    return QFileInfo(path).filesystemFilePath();
}

[[noreturn]] void fail(const QString &path, std::error_code why)
{
    throw FileError(FileError::Operation::Write, path, why);
}
} // namespace

// What Qt and the standard library offer either stop at a link that leads to no file, or know only
// one link.
QString finalPath(const QString &path)
{
    if (path.isEmpty())
        fail(path, std::make_error_code(std::errc::invalid_argument));
    constexpr int MostLinks = 40; // as many as the system follows
    std::error_code why;
    fs::path place = systemPath(path);
    for (int links = 0; fs::is_symlink(fs::symlink_status(place, why)); ++links) {
        if (links == MostLinks)
            fail(path, std::make_error_code(std::errc::too_many_symbolic_link_levels));
        place = place.parent_path() / fs::read_symlink(place, why);
    }
    const fs::path folder = fs::weakly_canonical(fs::absolute(place).parent_path(), why);
    if (why)
        fail(path, why);
    place = folder / place.filename();
    QString found = QFileInfo(place).filePath();
    // A name with bytes that are no text reads as another name, and another file would be written.
    if (systemPath(found) != place)
        fail(path, std::make_error_code(std::errc::invalid_argument));
    return found;
}

bool isSameFile(const QString &one, const QString &other)
{
    std::error_code missing; // one of them does not exist: then no hard link joins them
    return finalPath(one) == finalPath(other) ||
           fs::equivalent(systemPath(one), systemPath(other), missing);
}

int namesOf(const QString &path)
{
    std::error_code missing;
    const auto names = fs::hard_link_count(systemPath(path), missing);
    return missing ? 0 : static_cast<int>(names);
}
