#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <optional>

// A regular file kept open for reading, with what it was when it was opened. Its bytes stay
// readable when another file takes its name or its name goes away; when its own bytes change, every
// read fails, so that another file's bytes are never taken for its own.
class OpenedFile
{
public:
    // Throws FileError (Read), also for anything but a regular file.
    explicit OpenedFile(const QString &path);

    qint64 size() const { return m_identity.size; }

    // length bytes from the 0-based offset. Throws FileError (Read) when they lie outside the file
    // or the file has changed.
    QByteArray read(qint64 offset, qint64 length);

    // True while path still names this very file, unchanged.
    bool isStillAt(const QString &path) const;

private:
    struct Identity {
        qint64 size = -1;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;
        quint64 inode = 0;
        quint64 device = 0;
        bool operator==(const Identity &) const = default;
    };
    static Identity identityOf(const struct stat &status);

    QFile m_file;
    Identity m_identity;
};
