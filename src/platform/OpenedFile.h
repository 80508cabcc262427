#pragma once

#include "platform/SystemFiles.h"

#include <QByteArray>
#include <QFile>
#include <QList>
#include <QString>
#include <optional>

// What the bytes of a file are known by, also after the program has ended: their number, and 64
// hexadecimal digits.
struct FileIdentity {
    qint64 size = 0;
    QByteArray sum;
    bool operator==(const FileIdentity &) const = default;
};

// A regular file kept open for reading, with checksums of its bytes when it was opened. The bytes
// stay readable when another file takes its name or its name goes away. Another file's bytes are
// never taken for its own: once its stamp has changed, bytes are compared with the checksums. So a
// file that was merely touched, or written again with the same bytes, is as good as before, and of
// one that was written over, the parts that stayed are still read.
class OpenedFile
{
public:
    // Reads the file once, from its start to its end. Throws FileError (Read), also for anything
    // but a regular file and above 4 GiB, twice what an adventure may have.
    explicit OpenedFile(const QString &path);

    qint64 size() const { return m_size; }

    // That of the bytes as they were opened. Nothing is read for it.
    const FileIdentity &identity();

    // length bytes from the 0-based offset. Throws FileError (Read) when they lie outside the file
    // or are no longer those that were there.
    QByteArray read(qint64 offset, qint64 length);

    // True while the file at path, this one or another, has the bytes that were opened.
    bool isStillAt(const QString &path);

    // True when path names this very file, whatever its bytes are by now. On a system that
    // cannot tell, one with the same bytes is taken for it.
    bool isNamed(const QString &path);

    // The file has another name by now, by which failures speak of it.
    void setPath(const QString &path) { m_path = path; }

    // Another file is about to take the name path, or to be moved there from it. Where the system
    // lets no open file be replaced, this one is closed if that is its name.
    void giveWay(const QString &path);

    // Opens it again by its path, if that can be; else the next read tries. Bytes that others have
    // put there meanwhile are not taken for its own.
    void comeBack();

private:
    void reopen();
    bool isUntouched() const;
    QByteArray readVerified(qint64 offset, qint64 length);
    QByteArray readAt(qint64 offset, qint64 length);

    QString m_path;
    QFile m_file;
    qint64 m_size = 0;
    FileStamp m_stamp;                      // when the bytes last were known to be right
    std::optional<FileIdentity> m_identity; // once it was asked for
    QList<quint64> m_blocks; // checksums of BlockSize bytes each, the last may be shorter
};
