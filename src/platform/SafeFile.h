#pragma once

#include "platform/SystemFiles.h"

#include <QByteArray>
#include <QFile>
#include <QSaveFile>
#include <QString>
#include <QStringList>
#include <system_error>

// How much of a write must have reached the disk when the call returns.
enum class Durability {
    Full, // the bytes and, if the disk can do it, the folder's entry
    Data, // the bytes alone
};

// What a symbolic link of the target's name means.
enum class Links {
    Follow,  // the file that a chain of links ends in is replaced, the links stay
    Replace, // the link itself is replaced: in the working folder nothing leads elsewhere
};

// What becomes of a file that is marked as not to be written to.
enum class ReadOnly {
    Stays,    // the write fails
    Replaced, // the author has been asked; the new file is marked so too
};

// One file being written: with writeForLater() and LaterFile the only way in which the program
// writes files. The target is replaced whole by commit() or left untouched. Every failure throws
// FileError (Write) and leaves nothing behind; once the new file is in its place nothing fails any
// more. Only regular files are replaced. The new file has the owner, the group and the permissions
// of the one that it replaces, as far as the system allows. Where links are followed, in the
// folders of the author, what a killed program has left half written there goes first.
class SafeFile
{
public:
    SafeFile(const QString &path, Durability durability, Links links,
             ReadOnly readOnly = ReadOnly::Stays);
    ~SafeFile();
    SafeFile(const SafeFile &) = delete;
    SafeFile &operator=(const SafeFile &) = delete;

    void write(QByteArrayView bytes);
    // Number of bytes written so far.
    qint64 position() const { return m_file.pos(); }
    void commit();

private:
    [[noreturn]] void fail(std::error_code why);

    QString m_target;
    QSaveFile m_file;
    FileClaim m_claim; // until it has its name
    Durability m_durability;
};

void writeWholeFile(const QString &path, QByteArrayView bytes, Durability durability, Links links);

// A new file that counts only from a later commit on: it is complete, but on the disk for certain
// only after syncFileSystem(). A file or link of that name goes first. Throws FileError (Write);
// part of the file may then be left.
void writeForLater(const QString &path, QByteArrayView bytes);

// Brings everything written to the file system of a folder onto the disk. Throws FileError (Write).
void syncFileSystem(const QString &folder);

// Opens a file for reading; some systems make it forget its name. Throws FileError (Read), also for
// anything but a regular file: opening a pipe would wait for its other end.
void openRegular(QFile &file, QIODevice::OpenMode mode);

// The whole of a regular file. Throws FileError (Read) when it cannot be read, is no regular file
// or is longer than limit bytes.
QByteArray readWholeFile(const QString &path, qint64 limit);

// Removes a file or a link. A file that is not there is no error. Throws FileError (Write).
void removeFile(const QString &path);

// The same for a file that counts no more, so that one that stays does no harm. False: it stays.
bool tryRemoveFile(const QString &path);

// Gives a file another name on the same file system; a file or link of that name goes. Throws
// FileError (Write) and changes nothing.
void renameFile(const QString &source, const QString &target);

// Whether a name leads to anything, be it a link that leads nowhere.
bool isAnythingAt(const QString &path);

// Moves files to a folder on the same file system, which is made if need be and goes again when it
// stays empty. Those that are not there are passed over. Throws FileError (Write) at the first that
// stays.
void moveToFolder(const QStringList &paths, const QString &folder);

// Puts the complete file source in the place of target (links followed; owner, group and
// permissions of the target kept; one marked read-only is replaced too) and removes source: by
// rename on one file system, else by a safe copy, and then a source that cannot be removed is left.
// On failure throws FileError (Write), and both files are as they were.
void moveIntoPlace(const QString &source, const QString &target);

// A safe copy of a regular file; a file of the target's name is replaced. Throws FileError.
void copyFile(const QString &source, const QString &target, ReadOnly readOnly = ReadOnly::Stays);

// Keeps a file under another name, which nobody has yet: under a second name of the same file where
// the disk knows such names and nobody else uses them, else as a safe copy. Throws FileError.
void keepAs(const QString &source, const QString &target);

// Whether a file is there that is marked as not to be written to, or that this user may not write
// to. A rename would replace it all the same.
bool isReadOnly(const QString &path);

// Throws FileError (Write) when something is there that is no regular file, or a read-only one that
// is to stay.
void refuseUnreplaceable(const QString &path, ReadOnly readOnly = ReadOnly::Stays);

// Makes the entries of a folder durable. A system without such a call does nothing. Throws
// FileError (Write).
void syncFolder(const QString &folder);

// The same behind a file that is in its place already: that has succeeded, whatever the disk says.
void trySyncFolder(const QString &folder);
