#include "platform/SystemFiles.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <filesystem>

namespace fs = std::filesystem;

namespace
{
fs::path systemPath(const QString &path)
{
    return QFileInfo(path).filesystemFilePath();
}

qint64 nanoseconds(const QDateTime &time)
{
    return time.toMSecsSinceEpoch() * 1'000'000;
}
} // namespace

const bool StampsProve = false;
const bool OpenFilesGiveWay = false;
const bool SyncsAllAtOnce = false;

std::optional<FileStamp> stampOf(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return std::nullopt;
    return FileStamp{info.size(), nanoseconds(info.lastModified()), 0, 0, 0};
}

// Qt asks the system once and then answers from memory.
std::optional<FileStamp> stampOf(const QFile & /*open*/)
{
    return std::nullopt;
}

// Two files may well have the same length and time.
bool isOneFile(const FileStamp & /*one*/, const FileStamp & /*other*/)
{
    return false;
}

std::error_code openShared(QFile &file, QIODevice::OpenMode mode)
{
    return file.open(mode) ? std::error_code() : failureOf(file);
}

// Qt tells few reasons apart: what is there now says more.
std::error_code failureOf(const QFileDevice &file)
{
    const QFileInfo info(file.fileName());
    if (!info.dir().exists() || (!info.exists() && file.openMode() == QIODevice::NotOpen))
        return std::make_error_code(std::errc::no_such_file_or_directory);
    if (file.error() == QFileDevice::PermissionsError)
        return std::make_error_code(std::errc::permission_denied);
    if (file.error() == QFileDevice::ResourceError)
        return std::make_error_code(std::errc::no_space_on_device);
    return {};
}

// QSaveFile brings its bytes onto the disk itself, so that nothing is left to do for the functions
// that sync.
std::error_code writeNew(const QString &path, QByteArrayView bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes.data(), bytes.size()) == bytes.size() &&
        file.commit())
        return {};
    const std::error_code failure = failureOf(file);
    return failure ? failure : std::make_error_code(std::errc::io_error);
}

std::error_code renameOver(const QString &source, const QString &target)
{
    std::error_code failure;
    fs::rename(systemPath(source), systemPath(target), failure);
    return failure;
}

std::error_code removeEntry(const QString &path)
{
    std::error_code failure;
    if (!fs::remove(systemPath(path), failure) && !failure)
        return std::make_error_code(std::errc::no_such_file_or_directory);
    return failure;
}

std::error_code addName(const QString &path, const QString &added)
{
    std::error_code failure;
    fs::create_hard_link(systemPath(path), systemPath(added), failure);
    return failure;
}

std::error_code syncFile(const QFileDevice & /*file*/)
{
    return {};
}

std::error_code syncEntries(const QString & /*folder*/)
{
    return {};
}

std::error_code syncFileSystemOf(const QString & /*folder*/)
{
    return {};
}

// What the user himself may do is asked of the system, and would be given to the owner: root may
// write everything.
void keepAttributes(const QString &written, const QString &replaced)
{
    constexpr QFile::Permissions own = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;
    const QFileInfo info(replaced);
    if (info.exists())
        QFile::setPermissions(written, info.permissions() & ~own);
}

FileClaim::~FileClaim()
{
    giveUp();
}

bool FileClaim::take(const QString & /*path*/)
{
    return true;
}

void FileClaim::takeOpen(const QFileDevice & /*open*/) {}

void FileClaim::giveUp() {}

void letTooLongWritesFail() {}

void useConsoleForUtf8() {}
