#include "store/ExportTarget.h"

#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "platform/SameFile.h"
#include "store/Variables.h"
#include "store/WorkingFiles.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace
{
bool isAdventure(const Variables &variables, const QString &path)
{
    return isSameFile(path, variables.AdventurePath) ||
           (variables.AdventureFile && variables.AdventureFile->isNamed(path));
}

bool isWorkingFile(const Variables &variables, const QString &path)
{
    const QDir folder(variables.WorkingFolder);
    const QString place = finalPath(path);
    if (place.startsWith(folder.canonicalPath() + u'/') && WorkingFiles::isOwnName(place))
        return true;
    if (namesOf(path) < 2)
        return false;
    const QStringList names = folder.entryList(QDir::Files);
    return std::any_of(names.begin(), names.end(), [&](const QString &name) {
        return WorkingFiles::isOwnName(name) && isSameFile(path, folder.filePath(name));
    });
}
} // namespace

void refuseOwnFiles(const Variables &variables, const QString &path)
{
    if (isAdventure(variables, path) || isWorkingFile(variables, path))
        throw FileError(FileError::Operation::Write, path,
                        QStringLiteral("belongs to the open adventure"), std::errc::text_file_busy);
}

void writeExport(const Variables &variables, const QString &path, const QByteArray &bytes)
{
    refuseOwnFiles(variables, path);
    writeWholeFile(path, bytes, Durability::Full, Links::Follow);
}

QString proposedName(const Variables &variables)
{
    constexpr qsizetype Extension = 4; // ".usm"
    return variables.AdventureFileName.left(variables.AdventureFileName.size() - Extension);
}
