#include "platform/WindowsCalls.h"

#include <QDir>
#include <QFileInfo>

namespace
{
const QString LongPrefix = QStringLiteral("\\\\?\\");
const QString LongNetworkPrefix = QStringLiteral("\\\\?\\UNC\\");

constexpr DWORD QuotaExceeded = 1295; // Debian's headers have no name for it

struct Meaning {
    DWORD error;
    std::errc why;
};

constexpr Meaning Meanings[] = {
    {ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_TOO_MANY_OPEN_FILES, std::errc::too_many_files_open},
    {ERROR_ACCESS_DENIED, std::errc::permission_denied},
    {ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
    {ERROR_SHARING_VIOLATION, std::errc::device_or_resource_busy},
    {ERROR_LOCK_VIOLATION, std::errc::device_or_resource_busy},
    {ERROR_USER_MAPPED_FILE, std::errc::device_or_resource_busy},
    {ERROR_BUSY, std::errc::device_or_resource_busy},
    {ERROR_DISK_FULL, std::errc::no_space_on_device},
    {ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
    {QuotaExceeded, std::errc::no_space_on_device},
    {ERROR_NOT_SAME_DEVICE, std::errc::cross_device_link},
    {ERROR_FILE_EXISTS, std::errc::file_exists},
    {ERROR_ALREADY_EXISTS, std::errc::file_exists},
    {ERROR_INVALID_NAME, std::errc::invalid_argument},
    {ERROR_BAD_PATHNAME, std::errc::invalid_argument},
    {ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
    {ERROR_FILE_TOO_LARGE, std::errc::file_too_large},
    {ERROR_DIRECTORY, std::errc::not_a_directory},
    {ERROR_CANT_RESOLVE_FILENAME, std::errc::too_many_symbolic_link_levels},
    {ERROR_NOT_READY, std::errc::no_such_device},
    {ERROR_BAD_NETPATH, std::errc::no_such_device},
    {ERROR_BAD_NET_NAME, std::errc::no_such_device},
    {ERROR_NETNAME_DELETED, std::errc::no_such_device},
    {ERROR_NETWORK_UNREACHABLE, std::errc::no_such_device},
    {ERROR_DEVICE_NOT_CONNECTED, std::errc::no_such_device},
    {ERROR_UNEXP_NET_ERR, std::errc::no_such_device},
    {ERROR_DEV_NOT_EXIST, std::errc::no_such_device},
    {ERROR_NOT_SUPPORTED, std::errc::not_supported},
    {ERROR_INVALID_FUNCTION, std::errc::not_supported},
};
} // namespace

std::wstring systemName(const QString &path)
{
    if (path.startsWith(LongPrefix))
        return path.toStdWString();
    const QString name =
        QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    const bool onNetwork = name.startsWith(QLatin1String("\\\\"));
    return (onNetwork ? LongNetworkPrefix + name.mid(2) : LongPrefix + name).toStdWString();
}

QString nameFromSystem(const std::wstring &name)
{
    QString path = QString::fromStdWString(name);
    if (path.startsWith(LongNetworkPrefix))
        path = QStringLiteral("\\\\") + path.mid(LongNetworkPrefix.size());
    else if (path.startsWith(LongPrefix))
        path = path.mid(LongPrefix.size());
    return QDir::fromNativeSeparators(path);
}

std::error_code reasonOf(DWORD error)
{
    for (const Meaning &meaning : Meanings)
        if (meaning.error == error)
            return std::make_error_code(meaning.why);
    return std::make_error_code(std::errc::io_error);
}

std::error_code lastFailure()
{
    return reasonOf(::GetLastError());
}

WindowsHandle::~WindowsHandle()
{
    if (isOpen())
        ::CloseHandle(m_handle);
}

HANDLE openEntry(const QString &path, DWORD access)
{
    return ::CreateFileW(systemName(path).c_str(), access,
                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                         OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}
