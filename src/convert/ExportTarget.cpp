#include "convert/ExportTarget.h"

#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "platform/SameFile.h"
#include "store/Variables.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>

namespace
{
// Texts like "LTdI-0026.rtf", whatever the prefix, since other adventures have theirs there too;
// all that is named .xyz; the lock.
bool isWorkingFileName(const QString &path)
{
    static const QRegularExpression names(
        QStringLiteral("-(?:[01][0-9]{3}|2000)\\.rtf$|\\.xyz$|\\.lock$"),
        QRegularExpression::CaseInsensitiveOption);
    return names.match(path).hasMatch();
}

bool isAdventure(const Variables &variables, const QString &path)
{
    return isSameFile(path, variables.AdventurePath) ||
           (variables.AdventureFile && variables.AdventureFile->isNamed(path));
}

bool isWorkingFile(const Variables &variables, const QString &path)
{
    const QDir folder(variables.WorkingFolder);
    const QString place = finalPath(path);
    if (place.startsWith(folder.canonicalPath() + u'/') && isWorkingFileName(place))
        return true;
    if (!hasOtherNames(path))
        return false;
    const QStringList names = folder.entryList(QDir::Files);
    return std::any_of(names.begin(), names.end(), [&](const QString &name) {
        return isWorkingFileName(name) && isSameFile(path, folder.filePath(name));
    });
}
} // namespace

void refuseOwnFiles(const Variables &variables, const QString &path)
{
    if (isAdventure(variables, path) || isWorkingFile(variables, path))
        throw FileError(FileError::Operation::Write, path,
                        QStringLiteral("belongs to the open adventure"), std::errc::text_file_busy);
}

QString proposedName(const Variables &variables)
{
    constexpr qsizetype Extension = 4; // ".usm"
    return variables.AdventureFileName.left(variables.AdventureFileName.size() - Extension);
}
