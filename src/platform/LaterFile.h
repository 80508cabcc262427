#pragma once

#include <QByteArrayView>
#include <QFile>

// What writeForLater() writes, given bit by bit: a new file that is on the disk for certain only
// after syncFileSystem(). A file or link of its name goes first, and it goes itself unless it was
// finished. Every failure to write throws FileError (Write).
class LaterFile
{
public:
    explicit LaterFile(const QString &path);
    ~LaterFile();
    LaterFile(const LaterFile &) = delete;
    LaterFile &operator=(const LaterFile &) = delete;

    void write(QByteArrayView bytes);
    // Number of bytes written so far.
    qint64 position() const { return m_position; }
    // What was written there. Throws FileError (Read).
    QByteArray read(qint64 offset, qint64 size);
    void finish();

private:
    [[noreturn]] void fail();

    QFile m_file;
    qint64 m_position = 0;
    bool m_finished = false;
};
