#include "platform/SafeFile.h"

#include "platform/Errors.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace
{
QString lastSystemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

[[noreturn]] void failWrite(const QString &path, const QString &why)
{
    throw FileError(FileError::Operation::Write, path, why);
}

QString checkedTarget(const QString &path, Links links)
{
    const QFileInfo info(path);
    if (links == Links::Replace && info.isSymLink()) {
        removeFile(path);
        return path;
    }
    if (info.exists() && !info.isFile())
        failWrite(path, QStringLiteral("not a regular file"));
    return path;
}

bool renamed(const QString &source, const QString &target)
{
    return std::rename(QFile::encodeName(source).constData(),
                       QFile::encodeName(target).constData()) == 0;
}

// A file descriptor that is closed on every way out.
class Descriptor
{
public:
    Descriptor(const QString &path, int flags)
        : m_path(path),
          m_descriptor(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, 0666))
    {
        if (m_descriptor < 0)
            failWrite(path, lastSystemError());
    }
    ~Descriptor() { ::close(m_descriptor); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    void write(QByteArrayView bytes) const
    {
        while (!bytes.isEmpty()) {
            const ssize_t written =
                ::write(m_descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()));
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                failWrite(m_path, lastSystemError());
            bytes = bytes.sliced(written);
        }
    }

    // Some file systems know no sync of a folder.
    void sync() const
    {
        if (::fsync(m_descriptor) != 0 && errno != EINVAL && errno != ENOTSUP)
            failWrite(m_path, lastSystemError());
    }

    int number() const { return m_descriptor; }

private:
    QString m_path;
    int m_descriptor;
};
} // namespace

QString resolvedTarget(const QString &path)
{
    const QFileInfo info(path);
    return info.isSymLink() ? info.symLinkTarget() : path;
}

void refuseUnreplaceable(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return;
    if (!info.isFile())
        failWrite(path, QStringLiteral("not a regular file"));
    if (!info.isWritable())
        failWrite(path, QStringLiteral("read-only"));
}

SafeFile::SafeFile(const QString &path, Durability durability, Links links)
    : m_file(checkedTarget(path, links)), m_durability(durability)
{
    m_file.setDirectWriteFallback(false);
    if (!m_file.open(QIODevice::WriteOnly))
        fail();
}

SafeFile::~SafeFile()
{
    m_file.cancelWriting();
}

void SafeFile::fail()
{
    m_file.cancelWriting();
    failWrite(m_file.fileName(), m_file.errorString());
}

void SafeFile::write(QByteArrayView bytes)
{
    if (m_file.write(bytes.data(), bytes.size()) != bytes.size())
        fail();
}

void SafeFile::commit()
{
    // QSaveFile ignores a sync that failed, so the sync is ours: a full disk may show only here.
    if (!m_file.flush())
        fail();
    if (::fsync(m_file.handle()) != 0) {
        const QString why = lastSystemError();
        m_file.cancelWriting();
        failWrite(m_file.fileName(), why);
    }
    if (!m_file.commit())
        failWrite(m_file.fileName(), m_file.errorString());
    if (m_durability == Durability::Full)
        syncFolder(QFileInfo(resolvedTarget(m_file.fileName())).absolutePath());
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
    const Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL);
    file.write(bytes);
#ifndef Q_OS_LINUX
    file.sync();
#endif
}

void syncFileSystem(const QString &folder)
{
    const Descriptor descriptor(folder, O_RDONLY | O_DIRECTORY);
#ifdef Q_OS_LINUX
    if (::syncfs(descriptor.number()) != 0)
        failWrite(folder, lastSystemError());
#else
    descriptor.sync(); // every file is synced as it is written
#endif
}

QByteArray readWholeFile(const QString &path, qint64 limit)
{
    const auto fail = [&path](const QString &why) {
        throw FileError(FileError::Operation::Read, path, why);
    };
    // Asked before opening, because opening a pipe would wait for its other end.
    if (!QFileInfo(path).isFile())
        fail(QStringLiteral("no regular file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(file.errorString());
    if (file.size() > limit)
        fail(QStringLiteral("longer than %1 bytes").arg(limit));
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        fail(file.errorString());
    return bytes;
}

void removeFile(const QString &path)
{
    if (::unlink(QFile::encodeName(path).constData()) != 0 && errno != ENOENT)
        failWrite(path, lastSystemError());
}

void renameFile(const QString &source, const QString &target)
{
    if (!renamed(source, target))
        failWrite(target, lastSystemError());
}

void copyFile(const QString &source, const QString &target)
{
    if (!QFileInfo(source).isFile())
        throw FileError(FileError::Operation::Read, source, QStringLiteral("no regular file"));
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly))
        throw FileError(FileError::Operation::Read, source, from.errorString());
    SafeFile to(target, Durability::Full, Links::Follow);
    while (!from.atEnd()) {
        const QByteArray block = from.read(1 << 20);
        if (from.error() != QFileDevice::NoError)
            throw FileError(FileError::Operation::Read, source, from.errorString());
        to.write(block);
    }
    to.commit();
}

void moveIntoPlace(const QString &source, const QString &target)
{
    const QString resolved = resolvedTarget(target);
    refuseUnreplaceable(resolved);
    const QFileInfo info(resolved);
    if (info.exists())
        QFile::setPermissions(source, info.permissions());
    if (renamed(source, resolved)) {
        syncFolder(info.absolutePath());
        return;
    }
    if (errno != EXDEV)
        failWrite(target, lastSystemError());
    copyFile(source, resolved);
    removeFile(source);
}

void syncFolder(const QString &folder)
{
    Descriptor(folder, O_RDONLY | O_DIRECTORY).sync();
}
