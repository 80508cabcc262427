#include "platform/OpenedFile.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"

#include <QCryptographicHash>
#include <QtEndian>
#include <algorithm>
#include <utility>

namespace
{
// Small, so that a change of a few bytes spoils the texts that have them and no others.
constexpr qint64 BlockSize = 512;
constexpr qint64 ReadAtOnce = 128 * BlockSize;
constexpr qint64 LargestFile = qint64{4} * 1024 * 1024 * 1024;

// Unbuffered: every read is one whole piece, and a buffer would hide a change.
constexpr QIODevice::OpenMode Mode = QIODevice::ReadOnly | QIODevice::Unbuffered;

using Operation = FileError::Operation;

// The bytes are not those that were there.
[[noreturn]] void failChanged(const QString &path, const QString &how)
{
    throw FileError(Operation::Read, path, how, std::errc::bad_message);
}

quint64 mixed(quint64 sum)
{
    sum *= 0x9e3779b97f4a7c15;
    return sum ^ (sum >> 29);
}

// Always the same for the same bytes, whatever the machine and the version of a library: the next
// start of the program compares them as well. Against chance and not against malice: a change of
// eight bytes in a row never goes unseen, any other once in 2^64 times.
quint64 checksum(QByteArrayView bytes)
{
    auto sum = static_cast<quint64>(bytes.size());
    for (; bytes.size() >= 8; bytes = bytes.sliced(8))
        sum = mixed(sum ^ qFromLittleEndian<quint64>(bytes.data()));
    for (const char byte : bytes)
        sum = mixed(sum ^ static_cast<quint8>(byte));
    return sum;
}

// Of the file from where it stands to its end.
QList<quint64> checksums(QFile &file, const QString &path)
{
    QByteArray bytes(ReadAtOnce, Qt::Uninitialized);
    QList<quint64> sums;
    for (;;) {
        const qint64 length = file.read(bytes.data(), bytes.size());
        if (length < 0)
            throw FileError(Operation::Read, path, failureOf(file));
        if (length == 0)
            return sums;
        for (qint64 at = 0; at < length; at += BlockSize)
            sums.append(
                checksum(QByteArrayView(bytes).sliced(at, std::min(BlockSize, length - at))));
    }
}
} // namespace

OpenedFile::OpenedFile(const QString &path) : m_path(path), m_file(path)
{
    openRegular(m_file, Mode);
    // Before the bytes, so that a change while they are read shows later.
    m_stamp = stampOf(m_file).value_or(FileStamp());
    m_size = m_file.size();
    if (size() > LargestFile)
        throw FileError(Operation::Read, path,
                        QStringLiteral("longer than %1 bytes").arg(LargestFile),
                        std::errc::file_too_large);
    m_blocks = checksums(m_file, path);
}

const FileIdentity &OpenedFile::identity()
{
    if (m_identity)
        return *m_identity;
    QByteArray sums;
    sums.reserve(m_blocks.size() * qsizetype{sizeof(quint64)});
    for (const quint64 sum : std::as_const(m_blocks)) {
        char bytes[sizeof sum];
        qToLittleEndian(sum, bytes);
        sums.append(bytes, sizeof bytes);
    }
    const QByteArray hash = QCryptographicHash::hash(sums, QCryptographicHash::Sha256);
    return m_identity.emplace(FileIdentity{m_size, hash.toHex()});
}

void OpenedFile::giveWay(const QString &path)
{
    if (!OpenFilesGiveWay && isNamed(path))
        m_file.close();
}

void OpenedFile::comeBack()
{
    try {
        reopen();
    } catch (const FileError &) {
        return; // it may be there again when it is read
    }
}

void OpenedFile::reopen()
{
    if (m_file.isOpen())
        return;
    m_file.setFileName(m_path);
    openRegular(m_file, Mode);
    m_stamp = stampOf(m_file).value_or(FileStamp());
}

bool OpenedFile::isUntouched() const
{
    return StampsProve && stampOf(m_file) == m_stamp;
}

QByteArray OpenedFile::read(qint64 offset, qint64 length)
{
    if (offset < 0 || length < 0 || offset > size() || length > size() - offset)
        throw FileError(Operation::Read, m_path, QStringLiteral("outside the file"));
    reopen();
    return isUntouched() ? readAt(offset, length) : readVerified(offset, length);
}

// Reads the blocks whole that the bytes lie in. It is these bytes that are compared and given, so
// that no change can come in between.
QByteArray OpenedFile::readVerified(qint64 offset, qint64 length)
{
    const qint64 first = offset / BlockSize;
    const qint64 start = first * BlockSize;
    const qint64 end = std::min((offset + length + BlockSize - 1) / BlockSize * BlockSize, size());
    const QByteArray blocks = readAt(start, end - start);
    for (qint64 at = 0; at < blocks.size(); at += BlockSize) {
        const QByteArrayView block =
            QByteArrayView(blocks).sliced(at, std::min(BlockSize, blocks.size() - at));
        if (checksum(block) != m_blocks.value(first + at / BlockSize))
            failChanged(m_path, QStringLiteral("changed since it was opened"));
    }
    return blocks.mid(offset - start, length);
}

QByteArray OpenedFile::readAt(qint64 offset, qint64 length)
{
    if (!m_file.seek(offset))
        throw FileError(Operation::Read, m_path, failureOf(m_file));
    QByteArray bytes = m_file.read(length);
    if (bytes.size() != length)
        failChanged(m_path, QStringLiteral("shorter than it was"));
    return bytes;
}

bool OpenedFile::isStillAt(const QString &path)
{
    const std::optional<FileStamp> stamp = stampOf(path);
    if (!stamp || stamp->size != size())
        return false;
    const bool sameFile = isOneFile(*stamp, m_stamp);
    if (StampsProve && sameFile && *stamp == m_stamp)
        return true;
    try {
        QFile file(path);
        openRegular(file, Mode);
        if (checksums(file, path) != m_blocks)
            return false;
    } catch (const FileError &) {
        return false;
    }
    // Later reads need not compare again.
    if (sameFile)
        m_stamp = *stamp;
    return true;
}

bool OpenedFile::isNamed(const QString &path)
{
    const std::optional<FileStamp> stamp = stampOf(path);
    if (stamp && m_stamp.inode != 0)
        return isOneFile(*stamp, m_stamp);
    return stamp && isStillAt(path);
}
