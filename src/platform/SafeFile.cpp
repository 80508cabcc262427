#include "platform/SafeFile.h"

#include "platform/Errors.h"
#include "platform/PartFiles.h"
#include "platform/SameFile.h"
#include "platform/SystemFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

namespace
{
using Operation = FileError::Operation;

[[noreturn]] void failWrite(const QString &path, const QString &text, std::errc why)
{
    throw FileError(Operation::Write, path, text, why);
}

void throwIfFailed(std::error_code failure, const QString &path)
{
    if (failure)
        throw FileError(Operation::Write, path, failure);
}

QString checkedTarget(const QString &path, Links links, ReadOnly readOnly)
{
    if (links == Links::Replace && QFileInfo(path).isSymLink()) {
        removeFile(path);
        return path;
    }
    const QString target = links == Links::Follow ? finalPath(path) : path;
    refuseUnreplaceable(target, readOnly);
    if (links == Links::Follow)
        removeLeftParts(QFileInfo(target).absolutePath(), PartsIn::AnyFolder);
    return target;
}
} // namespace

// The one user that may write everywhere is not asked by the system.
bool isReadOnly(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && (!info.isWritable() || !info.permission(QFile::WriteOwner));
}

void refuseUnreplaceable(const QString &path, ReadOnly readOnly)
{
    const QFileInfo info(path);
    if (!info.exists())
        return;
    if (!info.isFile())
        failWrite(path, QStringLiteral("not a regular file"), std::errc::is_a_directory);
    if (readOnly == ReadOnly::Stays && isReadOnly(path))
        failWrite(path, QStringLiteral("read-only"), std::errc::permission_denied);
}

// QSaveFile writes to a name of its own and renames that, here to a name that tells whose it is.
SafeFile::SafeFile(const QString &path, Durability durability, Links links, ReadOnly readOnly)
    : m_target(checkedTarget(path, links, readOnly)), m_file(partOf(m_target)),
      m_durability(durability)
{
    m_file.setDirectWriteFallback(false);
    if (!m_file.open(QIODevice::WriteOnly))
        fail(failureOf(m_file));
    m_claim.takeOpen(m_file);
}

SafeFile::~SafeFile()
{
    m_file.cancelWriting();
}

void SafeFile::fail(std::error_code why)
{
    m_file.cancelWriting();
    throw FileError(Operation::Write, m_target, why);
}

void SafeFile::write(QByteArrayView bytes)
{
    if (m_file.write(bytes.data(), bytes.size()) != bytes.size())
        fail(failureOf(m_file));
}

void SafeFile::commit()
{
    // QSaveFile ignores a sync that failed, so the sync is ours: a full disk may show only here.
    if (!m_file.flush())
        fail(failureOf(m_file));
    if (const std::error_code failure = syncFile(m_file))
        fail(failure);
    if (!m_file.commit())
        fail(failureOf(m_file));
    const QString part = m_file.fileName();
    keepAttributes(part, m_target);
    if (const std::error_code failure = renameOver(part, m_target)) {
        tryRemoveFile(part);
        fail(failure);
    }
    m_claim.giveUp();
    if (m_durability == Durability::Full)
        trySyncFolder(QFileInfo(m_target).absolutePath());
}

void writeWholeFile(const QString &path, QByteArrayView bytes, Durability durability, Links links)
{
    SafeFile file(path, durability, links);
    file.write(bytes);
    file.commit();
}

void writeForLater(const QString &path, QByteArrayView bytes)
{
    removeFile(path);
    throwIfFailed(writeNew(path, bytes), path);
}

void syncFileSystem(const QString &folder)
{
    throwIfFailed(syncFileSystemOf(folder), folder);
}

void openRegular(QFile &file, QIODevice::OpenMode mode)
{
    // Asked before opening, because opening a pipe would wait for its other end.
    const QString path = file.fileName();
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        throw FileError(Operation::Read, path, QStringLiteral("no regular file"),
                        std::errc::is_a_directory);
    if (const std::error_code failure = openShared(file, mode))
        throw FileError(Operation::Read, path, failure);
}

QByteArray readWholeFile(const QString &path, qint64 limit)
{
    QFile file(path);
    openRegular(file, QIODevice::ReadOnly);
    if (file.size() > limit)
        throw FileError(Operation::Read, path, QStringLiteral("longer than %1 bytes").arg(limit),
                        std::errc::file_too_large);
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw FileError(Operation::Read, path, failureOf(file));
    return bytes;
}

void removeFile(const QString &path)
{
    const std::error_code failure = removeEntry(path);
    if (failure != std::errc::no_such_file_or_directory)
        throwIfFailed(failure, path);
}

bool tryRemoveFile(const QString &path)
{
    return !removeEntry(path);
}

void renameFile(const QString &source, const QString &target)
{
    throwIfFailed(renameOver(source, target), target);
}

bool isAnythingAt(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

void moveToFolder(const QStringList &paths, const QString &folder)
{
    QDir().mkpath(folder);
    const auto dropEmpty = qScopeGuard([&folder] { QDir().rmdir(folder); });
    for (const QString &path : paths)
        if (isAnythingAt(path))
            renameFile(path, folder + u'/' + QFileInfo(path).fileName());
}

void copyFile(const QString &source, const QString &target, ReadOnly readOnly)
{
    QFile from(source);
    openRegular(from, QIODevice::ReadOnly);
    SafeFile to(target, Durability::Full, Links::Follow, readOnly);
    while (!from.atEnd()) {
        const QByteArray block = from.read(1 << 20);
        if (from.error() != QFileDevice::NoError)
            throw FileError(Operation::Read, source, failureOf(from));
        to.write(block);
    }
    to.commit();
}

// What is written to one name of a file shows under all of them.
void keepAs(const QString &source, const QString &target)
{
    const QString resolved = finalPath(source);
    std::error_code unable = std::make_error_code(std::errc::too_many_links);
    if (namesOf(resolved) == 1)
        unable = addName(resolved, target);
    if (unable)
        copyFile(resolved, target);
}

void moveIntoPlace(const QString &source, const QString &target)
{
    const QString resolved = finalPath(target);
    refuseUnreplaceable(resolved, ReadOnly::Replaced);
    const QString folder = QFileInfo(resolved).absolutePath();
    removeLeftParts(folder, PartsIn::AnyFolder);
    const QFile::Permissions before = QFile::permissions(source);
    keepAttributes(source, resolved);
    const std::error_code failure = renameOver(source, resolved);
    if (!failure) {
        trySyncFolder(folder);
        return;
    }
    QFile::setPermissions(source, before);
    if (failure != std::errc::cross_device_link)
        throwIfFailed(failure, target);
    copyFile(source, resolved, ReadOnly::Replaced);
    tryRemoveFile(source);
}

void syncFolder(const QString &folder)
{
    throwIfFailed(syncEntries(folder), folder);
}

void trySyncFolder(const QString &folder)
{
    static_cast<void>(syncEntries(folder)); // there is nothing to do about a failure
}
