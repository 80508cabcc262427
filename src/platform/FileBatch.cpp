#include "platform/FileBatch.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "platform/SameFile.h"

#include <QFile>
#include <QFileInfo>

namespace
{
QString partOf(const QString &target)
{
    return target + QStringLiteral(".usmira-part");
}

QString folderOf(const QString &target)
{
    return QFileInfo(target).absolutePath();
}
} // namespace

FileBatch::~FileBatch()
{
    for (const QString &target : std::as_const(m_targets))
        QFile::remove(partOf(target));
}

void FileBatch::add(const QString &path, QByteArrayView bytes)
{
    const QString target = finalPath(path);
    refuseUnreplaceable(target);
    m_targets.append(target); // first, so that half a file goes too
    try {
        writeForLater(partOf(target), bytes);
    } catch (const FileError &error) {
        // The name that the author knows.
        throw FileError(FileError::Operation::Write, target, error.why());
    }
}

void FileBatch::commit()
{
    QStringList folders;
    for (const QString &target : std::as_const(m_targets))
        if (!folders.contains(folderOf(target)))
            folders.append(folderOf(target));
    for (const QString &folder : std::as_const(folders))
        syncFileSystem(folder);
    while (!m_targets.isEmpty()) {
        renameFile(partOf(m_targets.first()), m_targets.first());
        m_targets.removeFirst();
    }
    for (const QString &folder : std::as_const(folders))
        trySyncFolder(folder);
}
