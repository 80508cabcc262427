#include "platform/SystemFiles.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
std::error_code lastFailure()
{
    // A quota that is used up is a full disk to its owner, and the standard has no word for it.
    return {errno == EDQUOT ? ENOSPC : errno, std::generic_category()};
}

std::error_code resultOf(int status)
{
    return status == 0 ? std::error_code() : lastFailure();
}

qint64 nanoseconds(const timespec &time)
{
    return time.tv_sec * qint64{1'000'000'000} + time.tv_nsec;
}

FileStamp stampFrom(const struct stat &status)
{
    return {status.st_size, nanoseconds(status.st_mtim), nanoseconds(status.st_ctim), status.st_ino,
            status.st_dev};
}

std::optional<FileStamp> stampFrom(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return std::nullopt;
    return stampFrom(status);
}

// A file descriptor that is closed on every way out.
class Descriptor
{
public:
    Descriptor(const QString &path, int flags)
        : m_number(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, 0666))
    {
    }
    ~Descriptor()
    {
        if (isOpen())
            ::close(m_number);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

private:
    int m_number;
};
} // namespace

const bool StampsProve = true;
const bool OpenFilesGiveWay = true;
const bool SyncsAllAtOnce = true;

std::optional<FileStamp> stampOf(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return stampFrom(status);
}

std::optional<FileStamp> stampOf(const QFile &open)
{
    return stampFrom(open.handle());
}

bool isOneFile(const FileStamp &one, const FileStamp &other)
{
    return one.inode == other.inode && one.device == other.device;
}

std::error_code openShared(QFile &file, QIODevice::OpenMode mode)
{
    return file.open(mode) ? std::error_code() : failureOf(file);
}

// Qt tells few reasons apart, and leaves the system's own number as it found it.
std::error_code failureOf(const QFileDevice & /*file*/)
{
    return lastFailure();
}

std::error_code writeNew(const QString &path, QByteArrayView bytes)
{
    const Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL);
    if (!file.isOpen())
        return lastFailure();
    while (!bytes.isEmpty()) {
        const ssize_t written =
            ::write(file.number(), bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return lastFailure();
        bytes = bytes.sliced(written);
    }
    return {};
}

std::error_code renameOver(const QString &source, const QString &target)
{
    return resultOf(
        std::rename(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()));
}

std::error_code removeEntry(const QString &path)
{
    return resultOf(::unlink(QFile::encodeName(path).constData()));
}

std::error_code addName(const QString &path, const QString &added)
{
    return resultOf(
        ::link(QFile::encodeName(path).constData(), QFile::encodeName(added).constData()));
}

std::error_code syncFile(const QFileDevice &file)
{
    return resultOf(::fsync(file.handle()));
}

std::error_code syncEntries(const QString &folder)
{
    const Descriptor descriptor(folder, O_RDONLY | O_DIRECTORY);
    if (!descriptor.isOpen())
        return lastFailure();
    const std::error_code failure = resultOf(::fsync(descriptor.number()));
    // Some file systems know no sync of a folder.
    const bool unknown =
        failure == std::errc::invalid_argument || failure == std::errc::not_supported;
    return unknown ? std::error_code() : failure;
}

std::error_code syncFileSystemOf(const QString &folder)
{
    const Descriptor descriptor(folder, O_RDONLY | O_DIRECTORY);
    return descriptor.isOpen() ? resultOf(::syncfs(descriptor.number())) : lastFailure();
}

// The mode comes last: a change of owner takes some of it away. To give a file to somebody else is
// the right of few users, to give it to a group of one's own that of everybody.
void keepAttributes(const QString &written, const QString &replaced)
{
    struct stat before = {};
    const QByteArray path = QFile::encodeName(written);
    if (::stat(QFile::encodeName(replaced).constData(), &before) != 0)
        return;
    mode_t mode = before.st_mode & 07777;
    if (::chown(path.constData(), before.st_uid, before.st_gid) != 0 &&
        ::chown(path.constData(), static_cast<uid_t>(-1), before.st_gid) != 0)
        mode &= ~mode_t{070} | ((mode & 07) << 3);
    static_cast<void>(::chmod(path.constData(), mode)); // some disks know no modes
}

FileClaim::~FileClaim()
{
    giveUp();
}

// The lock is that of an open file, so that the same file opened once more here is another one.
bool FileClaim::take(const QString &path)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return true;
    const FileStamp wanted = stampFrom(descriptor).value_or(FileStamp());
    const bool ours = isHeld() && isOneFile(wanted, m_file);
    const bool busy = !ours && ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (ours || busy) {
        ::close(descriptor);
        return ours;
    }
    giveUp();
    m_held = descriptor;
    m_file = wanted;
    return true;
}

// A second descriptor of the same open file: the lock is that of both.
void FileClaim::takeOpen(const QFileDevice &open)
{
    giveUp();
    const int descriptor = ::fcntl(open.handle(), F_DUPFD_CLOEXEC, 0);
    static_cast<void>(::flock(descriptor, LOCK_EX | LOCK_NB)); // some disks know no locks
    m_held = descriptor;
    m_file = stampFrom(descriptor).value_or(FileStamp());
}

void FileClaim::giveUp()
{
    if (isHeld())
        ::close(static_cast<int>(m_held));
    m_held = -1;
}

void letTooLongWritesFail()
{
    std::signal(SIGXFSZ, SIG_IGN);
}

void useConsoleForUtf8() {}
