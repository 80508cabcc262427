#pragma once

#include <QByteArrayView>
#include <QFile>
#include <QString>
#include <optional>
#include <system_error>

class QFileDevice;

// What only some systems offer for files. Every function here has three bodies: one for Linux, one
// for Windows, and one of plain Qt and standard calls, which do what they can everywhere else
// (USMIRA_PORTABLE builds those here too). Functions that give an error_code give an empty one on
// success.

// Whether equal stamps of a file prove that nobody has written to it.
extern const bool StampsProve;
// Whether a file that is open can be replaced or removed, and what is open stays readable.
extern const bool OpenFilesGiveWay;
// Whether syncFileSystemOf() is all it takes; else each file is synced by itself.
extern const bool SyncsAllAtOnce;

// What a file can be told by without reading it. Equal stamps of one file: nobody has written to
// it meanwhile. Unequal ones say nothing: it may have been touched, or written again with the same
// bytes. Times in nanoseconds since 1970; what a system does not know stays 0.
struct FileStamp {
    qint64 size = 0;
    qint64 modified = 0;
    qint64 changed = 0;
    quint64 inode = 0;
    quint64 device = 0;
    bool operator==(const FileStamp &) const = default;
};

// Empty when there is no such file, or the system does not tell: then only its bytes do.
std::optional<FileStamp> stampOf(const QString &path);
std::optional<FileStamp> stampOf(const QFile &open);

// True when two stamps are those of one file, whatever was written to it in between. False also
// when the system cannot tell.
bool isOneFile(const FileStamp &one, const FileStamp &other);

// Opens a file for reading in nobody's way.
std::error_code openShared(QFile &file, QIODevice::OpenMode mode);

// Why a call of file has failed; to be asked at once.
std::error_code failureOf(const QFileDevice &file);

// Writes a file that is not there yet, not necessarily onto the disk: see syncFileSystemOf().
std::error_code writeNew(const QString &path, QByteArrayView bytes);

// A file or link of the target's name goes. errc::cross_device_link when the two names lie on
// different file systems.
std::error_code renameOver(const QString &source, const QString &target);

// Removes a file or a link; there must be one.
std::error_code removeEntry(const QString &path);

// Gives a file a second name, which nobody has yet.
std::error_code addName(const QString &path, const QString &added);

// Bring onto the disk: the bytes of an open file, the entries of a folder, and all that was written
// by writeNew() to the file system on which a folder lies.
std::error_code syncFile(const QFileDevice &file);
std::error_code syncEntries(const QString &folder);
std::error_code syncFileSystemOf(const QString &folder);

// Gives the file at written the owner, the group and the permissions of the one that it is about to
// replace, as far as this system and this user may. Those of a group that cannot be kept are cut
// down to what everybody has.
void keepAttributes(const QString &written, const QString &replaced);

// Makes this program the one that may replace a file, until it ends or takes another. Programs that
// know nothing of claims are not hindered.
class FileClaim
{
public:
    FileClaim() = default;
    ~FileClaim();
    FileClaim(const FileClaim &) = delete;
    FileClaim &operator=(const FileClaim &) = delete;

    // False, and the claim before stays: another program has claimed the file. True where there is
    // no such file, or where the system knows no claims.
    bool take(const QString &path);
    // Claims a file that is open for writing, also for the time after that has been closed.
    void takeOpen(const QFileDevice &open);
    void giveUp();

    // False also where take() had nothing to claim.
    bool isHeld() const { return m_held != -1; }

private:
    qintptr m_held = -1; // what the system knows the claim by
    FileStamp m_file;
};

// From now on a write that goes beyond the size that files may have fails like any other, instead
// of ending the program. Called once, by main.
void letTooLongWritesFail();

// From now on standard input and output carry the bytes that are read and written, which are UTF-8.
// Called once, by the main of a program for scripts.
void useConsoleForUtf8();
