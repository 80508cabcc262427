#pragma once

#include <QByteArrayView>
#include <QStringList>
#include <memory>
#include <vector>

class FileClaim;

// Many files written at once: old files stay until all the new ones are whole and on the disk, with
// one sync for all of them. Links are followed, and what an earlier program was killed with is
// removed.
class FileBatch
{
public:
    FileBatch();
    // What was not committed is taken back.
    ~FileBatch();
    FileBatch(const FileBatch &) = delete;
    FileBatch &operator=(const FileBatch &) = delete;

    // Writes a file beside its place. Throws FileError (Write).
    void add(const QString &path, QByteArrayView bytes);

    // Puts all files in their places. Throws FileError (Write): before the first file when the disk
    // is in trouble; when one place in between cannot be taken, those before it are new and whole,
    // and those behind it old.
    void commit();

private:
    void enter(const QString &folder);

    QStringList m_targets; // links resolved
    QStringList m_folders;
    std::vector<std::unique_ptr<FileClaim>> m_claims; // on the folders
};
