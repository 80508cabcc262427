#include "platform/SameFile.h"

#include "platform/Errors.h"
#include "platform/SystemFiles.h"
#include "platform/WindowsCalls.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace
{
[[noreturn]] void fail(const QString &path, std::error_code why)
{
    throw FileError(FileError::Operation::Write, path, why);
}

// Windows itself would take "Le Loup : suite.usm" for a hidden part of "Le Loup ", throw away what
// is written to "nul.usm", and cut the dot off "Le Loup.".
bool isNamePermitted(const QString &name)
{
    static const QRegularExpression forbidden(
        QStringLiteral(
            "[\\x00-\\x1f<>:\"/\\\\|?*]|[ .]$|"
            "^(con|prn|aux|nul|conin\\$|conout\\$|(com|lpt)[1-9\\xb9\\xb2\\xb3]) *(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return !forbidden.match(name).hasMatch(); // that of a whole disk is empty
}

// Of something that is there: links followed, and each name spelled as it is on the disk.
QString spelledByDisk(const QString &path, HANDLE open)
{
    std::wstring name(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = ::GetFinalPathNameByHandleW(
            open, name.data(), static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED);
        if (length == 0)
            return QFileInfo(path).absoluteFilePath(); // some network drives do not tell
        const bool fits = length < name.size();
        name.resize(length);
        if (fits)
            return nameFromSystem(name);
    }
}

QString finalFolder(const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    const WindowsHandle open(openEntry(folder, 0));
    return open.isOpen() ? spelledByDisk(folder, open.get()) : QDir::cleanPath(folder);
}
} // namespace

QString finalPath(const QString &path)
{
    if (path.isEmpty())
        fail(path, std::make_error_code(std::errc::invalid_argument));
    constexpr int MostLinks = 40;
    QString place = QFileInfo(path).absoluteFilePath();
    for (int links = 0; links < MostLinks; ++links) {
        const QFileInfo info(place);
        if (!isNamePermitted(info.fileName()))
            fail(path, std::make_error_code(std::errc::invalid_argument));
        const WindowsHandle open(openEntry(place, 0));
        if (open.isOpen())
            return spelledByDisk(place, open.get());
        if (::GetLastError() == ERROR_CANT_RESOLVE_FILENAME)
            break;
        if (!info.isSymbolicLink())
            return QDir(finalFolder(place)).filePath(info.fileName());
        place = info.symLinkTarget(); // a link that leads to no file yet
    }
    fail(path, std::make_error_code(std::errc::too_many_symbolic_link_levels));
}

bool isSameFile(const QString &one, const QString &other)
{
    if (finalPath(one).compare(finalPath(other), Qt::CaseInsensitive) == 0)
        return true;
    const std::optional<FileStamp> first = stampOf(one);
    const std::optional<FileStamp> second = stampOf(other);
    return first && second && isOneFile(*first, *second);
}

int namesOf(const QString &path)
{
    BY_HANDLE_FILE_INFORMATION information;
    const WindowsHandle open(openEntry(path, 0));
    return open.isOpen() && ::GetFileInformationByHandle(open.get(), &information) != 0
               ? static_cast<int>(information.nNumberOfLinks)
               : 0;
}
