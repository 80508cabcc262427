#include "platform/SystemFiles.h"

#include "platform/WindowsCalls.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>
#include <QtGlobal>
#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <memory>

namespace
{
// The same error as a disk that is full, in the numbers of the C library that Qt reads by.
constexpr DWORD FullForTheLibrary = ENOSPC;

qint64 joined(DWORD high, DWORD low)
{
    return static_cast<qint64>((quint64{high} << 32) | low);
}

// Windows counts tenths of a microsecond since 1601.
qint64 nanoseconds(qint64 ticks)
{
    constexpr qint64 From1601To1970 = 116'444'736'000'000'000;
    return (ticks - From1601To1970) * 100;
}

HANDLE handleOf(const QFileDevice &open)
{
    return reinterpret_cast<HANDLE>(::_get_osfhandle(open.handle())); // NOLINT
}

std::optional<FileStamp> stampFrom(HANDLE open)
{
    BY_HANDLE_FILE_INFORMATION file;
    FILE_BASIC_INFO times;
    if (::GetFileInformationByHandle(open, &file) == 0 ||
        ::GetFileInformationByHandleEx(open, FileBasicInfo, &times, sizeof times) == 0)
        return std::nullopt;
    return FileStamp{joined(file.nFileSizeHigh, file.nFileSizeLow),
                     nanoseconds(times.LastWriteTime.QuadPart),
                     nanoseconds(times.ChangeTime.QuadPart),
                     static_cast<quint64>(joined(file.nFileIndexHigh, file.nFileIndexLow)),
                     file.dwVolumeSerialNumber};
}

// Virus scanners and cloud clients hold a file that has just been written for a moment, and then
// Windows neither replaces nor removes nor opens it: up to a second it is tried again.
template <typename Call> std::error_code insisting(Call call)
{
    const QDeadlineTimer end(1000);
    while (!call()) {
        const DWORD error = ::GetLastError();
        const bool held = error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
                          error == ERROR_ACCESS_DENIED || error == ERROR_USER_MAPPED_FILE;
        if (!held || end.hasExpired())
            return reasonOf(error);
        QThread::msleep(20);
    }
    return {};
}

// While it lives, a file that is marked read-only may be replaced or removed, which Windows refuses
// and other systems do not. What is then still there under its name is marked again.
class WithoutMark
{
public:
    explicit WithoutMark(const std::wstring &name)
        : m_name(name), m_before(::GetFileAttributesW(name.c_str()))
    {
        m_marked = m_before != INVALID_FILE_ATTRIBUTES && (m_before & FILE_ATTRIBUTE_READONLY) != 0;
        if (m_marked)
            ::SetFileAttributesW(name.c_str(), m_before & ~DWORD{FILE_ATTRIBUTE_READONLY});
    }
    ~WithoutMark()
    {
        if (m_marked)
            ::SetFileAttributesW(m_name.c_str(), m_before);
    }
    WithoutMark(const WithoutMark &) = delete;
    WithoutMark &operator=(const WithoutMark &) = delete;

    void isGone() { m_marked = false; }

private:
    const std::wstring &m_name;
    DWORD m_before;
    bool m_marked;
};
// The claim is a name in the memory of the system, which is there as long as a program has it, and
// goes with one that is killed. It is made of the file's identity, since one file has many paths.
// Empty: another program has it; -1: nobody can have one.
std::optional<qintptr> claimOf(const FileStamp &file)
{
    if (file.inode == 0)
        return -1;
    const std::wstring name =
        QStringLiteral("Global\\usmira-%1-%2").arg(file.device).arg(file.inode).toStdWString();
    const HANDLE mutex = ::CreateMutexW(nullptr, FALSE, name.c_str());
    const DWORD result = ::GetLastError();
    if (mutex == nullptr)
        return result == ERROR_ACCESS_DENIED ? std::nullopt : std::optional<qintptr>(-1);
    if (result != ERROR_ALREADY_EXISTS)
        return reinterpret_cast<qintptr>(mutex); // NOLINT
    ::CloseHandle(mutex);
    return std::nullopt;
}
} // namespace

// The time of a change is final only when whoever has written has closed the file.
const bool StampsProve = false;
const bool OpenFilesGiveWay = false;
const bool SyncsAllAtOnce = false;

std::optional<FileStamp> stampOf(const QString &path)
{
    const WindowsHandle open(openEntry(path, 0));
    return open.isOpen() ? stampFrom(open.get()) : std::nullopt;
}

std::optional<FileStamp> stampOf(const QFile &open)
{
    return stampFrom(handleOf(open));
}

bool isOneFile(const FileStamp &one, const FileStamp &other)
{
    return one.inode == other.inode && one.device == other.device && one.inode != 0;
}

// Others may rename, replace or remove the file meanwhile, as on other systems.
std::error_code openShared(QFile &file, QIODevice::OpenMode mode)
{
    HANDLE open = INVALID_HANDLE_VALUE;
    const std::error_code failure = insisting([&] {
        open = openEntry(file.fileName(), GENERIC_READ);
        return open != INVALID_HANDLE_VALUE;
    });
    if (failure)
        return failure;
    const int descriptor =
        ::_open_osfhandle(reinterpret_cast<intptr_t>(open), _O_RDONLY | _O_BINARY); // NOLINT
    return file.open(descriptor, mode, QFileDevice::AutoCloseHandle) ? std::error_code()
                                                                     : failureOf(file);
}

// Qt keeps of a failure only what Windows calls it.
std::error_code failureOf(const QFileDevice &file)
{
    for (const DWORD error :
         {DWORD{ERROR_DISK_FULL}, FullForTheLibrary, DWORD{ERROR_ACCESS_DENIED},
          DWORD{ERROR_SHARING_VIOLATION}, DWORD{ERROR_LOCK_VIOLATION}, DWORD{ERROR_WRITE_PROTECT},
          DWORD{ERROR_FILE_NOT_FOUND}, DWORD{ERROR_PATH_NOT_FOUND}, DWORD{ERROR_INVALID_NAME},
          DWORD{ERROR_NOT_READY}, DWORD{ERROR_BAD_NETPATH}, DWORD{ERROR_NETNAME_DELETED},
          DWORD{ERROR_UNEXP_NET_ERR}, DWORD{ERROR_DEV_NOT_EXIST}})
        if (file.errorString() == qt_error_string(static_cast<int>(error)))
            return reasonOf(error == FullForTheLibrary ? DWORD{ERROR_DISK_FULL} : error);
    return std::make_error_code(std::errc::io_error);
}

// Nothing here brings all of a file system onto the disk at once, so that each file goes there by
// itself.
std::error_code writeNew(const QString &path, QByteArrayView bytes)
{
    const std::wstring name = systemName(path);
    const WindowsHandle file(::CreateFileW(name.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                           CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.isOpen())
        return lastFailure();
    while (!bytes.isEmpty()) {
        constexpr qsizetype AtOnce = 32 * 1024 * 1024;
        DWORD written = 0;
        if (::WriteFile(file.get(), bytes.data(),
                        static_cast<DWORD>(std::min(bytes.size(), AtOnce)), &written, nullptr) == 0)
            return lastFailure();
        bytes = bytes.sliced(written);
    }
    return ::FlushFileBuffers(file.get()) != 0 ? std::error_code() : lastFailure();
}

std::error_code renameOver(const QString &source, const QString &target)
{
    const std::wstring from = systemName(source);
    const std::wstring to = systemName(target);
    WithoutMark unmarked(to);
    const std::error_code failure = insisting([&] {
        return ::MoveFileExW(from.c_str(), to.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    });
    if (!failure)
        unmarked.isGone();
    return failure;
}

std::error_code removeEntry(const QString &path)
{
    const std::wstring name = systemName(path);
    WithoutMark unmarked(name);
    const std::error_code failure = insisting([&] { return ::DeleteFileW(name.c_str()) != 0; });
    if (!failure)
        unmarked.isGone();
    return failure;
}

std::error_code addName(const QString &path, const QString &added)
{
    return ::CreateHardLinkW(systemName(added).c_str(), systemName(path).c_str(), nullptr) != 0
               ? std::error_code()
               : lastFailure();
}

std::error_code syncFile(const QFileDevice &file)
{
    return ::FlushFileBuffers(handleOf(file)) != 0 ? std::error_code() : lastFailure();
}

// Not every disk has that for folders, and those that write their changes down first need it not.
std::error_code syncEntries(const QString &folder)
{
    const WindowsHandle open(openEntry(folder, GENERIC_WRITE));
    if (open.isOpen())
        ::FlushFileBuffers(open.get());
    return {};
}

std::error_code syncFileSystemOf(const QString & /*folder*/)
{
    return {};
}

// Owner and rights come from the folder, which is that of the replaced file; the marks are its own.
void keepAttributes(const QString &written, const QString &replaced)
{
    constexpr DWORD Marks = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                            FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                            FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    const DWORD before = ::GetFileAttributesW(systemName(replaced).c_str());
    if (before != INVALID_FILE_ATTRIBUTES && (before & Marks) != 0)
        ::SetFileAttributesW(systemName(written).c_str(), before & Marks);
}

FileClaim::~FileClaim()
{
    giveUp();
}

bool FileClaim::take(const QString &path)
{
    const std::optional<FileStamp> file = stampOf(path);
    if (!file || (isHeld() && isOneFile(*file, m_file)))
        return true;
    const std::optional<qintptr> claim = claimOf(*file);
    if (!claim)
        return false;
    giveUp();
    m_held = *claim;
    m_file = *file;
    return true;
}

void FileClaim::takeOpen(const QFileDevice &open)
{
    giveUp();
    m_file = stampFrom(handleOf(open)).value_or(FileStamp());
    m_held = claimOf(m_file).value_or(-1);
}

void FileClaim::giveUp()
{
    if (isHeld())
        ::CloseHandle(reinterpret_cast<HANDLE>(m_held)); // NOLINT
    m_held = -1;
}

void letTooLongWritesFail() {}

// Windows would add a sign to each line end, and show the bytes as those of an old code page.
void useConsoleForUtf8()
{
    for (std::FILE *const stream : {stdin, stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
    ::SetConsoleOutputCP(CP_UTF8);
}
