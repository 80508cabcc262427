#include "platform/FileBatch.h"

#include "platform/Errors.h"
#include "platform/PartFiles.h"
#include "platform/SafeFile.h"
#include "platform/SameFile.h"
#include "platform/SystemFiles.h"

#include <QFile>
#include <QFileInfo>

namespace
{
QString folderOf(const QString &target)
{
    return QFileInfo(target).absolutePath();
}
} // namespace

FileBatch::FileBatch() = default;

FileBatch::~FileBatch()
{
    for (const QString &target : std::as_const(m_targets))
        QFile::remove(partOf(target));
}

void FileBatch::add(const QString &path, QByteArrayView bytes)
{
    const QString target = finalPath(path);
    refuseUnreplaceable(target);
    enter(folderOf(target));
    m_targets.append(target); // first, so that half a file goes too
    try {
        writeForLater(partOf(target), bytes);
    } catch (const FileError &error) {
        // The name that the author knows.
        throw FileError(FileError::Operation::Write, target, error.why());
    }
}

// While a folder is held, no other program takes the parts in it for left ones.
void FileBatch::enter(const QString &folder)
{
    if (m_folders.contains(folder))
        return;
    removeLeftParts(folder, PartsIn::AnyFolder);
    m_folders.append(folder);
    m_claims.push_back(std::make_unique<FileClaim>());
    waitToClaim(*m_claims.back(), folder);
}

void FileBatch::commit()
{
    for (const QString &folder : std::as_const(m_folders))
        syncFileSystem(folder);
    while (!m_targets.isEmpty()) {
        keepAttributes(partOf(m_targets.first()), m_targets.first());
        renameFile(partOf(m_targets.first()), m_targets.first());
        m_targets.removeFirst();
    }
    for (const QString &folder : std::as_const(m_folders))
        trySyncFolder(folder);
}
