#include "platform/OpenedFile.h"

#include "platform/Errors.h"

#include <QFileInfo>
#include <sys/stat.h>

namespace
{
[[noreturn]] void failRead(const QString &path, const QString &why)
{
    throw FileError(FileError::Operation::Read, path, why);
}
} // namespace

OpenedFile::Identity OpenedFile::identityOf(const struct stat &status)
{
    return {status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_ino,
            status.st_dev};
}

OpenedFile::OpenedFile(const QString &path) : m_file(path)
{
    // Asked before opening, because opening a pipe would wait for its other end.
    if (!QFileInfo(path).isFile())
        failRead(path, QStringLiteral("no regular file"));
    // Unbuffered: every read below is one whole piece, and a buffer would hide a change.
    if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        failRead(path, m_file.errorString());
    struct stat status = {};
    if (::fstat(m_file.handle(), &status) != 0)
        failRead(path, QStringLiteral("no status"));
    m_identity = identityOf(status);
}

QByteArray OpenedFile::read(qint64 offset, qint64 length)
{
    if (offset < 0 || length < 0 || offset > size() || length > size() - offset)
        failRead(m_file.fileName(), QStringLiteral("outside the file"));
    struct stat status = {};
    if (::fstat(m_file.handle(), &status) != 0 || identityOf(status) != m_identity)
        failRead(m_file.fileName(), QStringLiteral("changed since it was opened"));
    if (!m_file.seek(offset))
        failRead(m_file.fileName(), m_file.errorString());
    QByteArray bytes = m_file.read(length);
    if (bytes.size() != length)
        failRead(m_file.fileName(), QStringLiteral("shorter than it was"));
    return bytes;
}

bool OpenedFile::isStillAt(const QString &path) const
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 &&
           identityOf(status) == m_identity;
}
