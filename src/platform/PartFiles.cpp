#include "platform/PartFiles.h"

#include "platform/SafeFile.h"
#include "platform/SystemFiles.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>

namespace
{
// An author may well copy such a file under a longer name: the endings are exact.
bool isPart(const QFileInfo &info)
{
    static const QRegularExpression names(QStringLiteral(".\\.usmira-part(\\.[A-Za-z]{6})?$"));
    return names.match(info.fileName()).hasMatch() && info.isFile() && !info.isSymLink();
}
} // namespace

QString partOf(const QString &target)
{
    return target + QStringLiteral(".usmira-part");
}

void waitToClaim(FileClaim &claim, const QString &folder)
{
    const QDeadlineTimer end(2000);
    while (!claim.take(folder) && !end.hasExpired())
        QThread::msleep(5);
}

// A FileBatch holds its folders as long as it has parts there, and every other part is claimed by
// the program that writes it.
void removeLeftParts(const QString &folder, PartsIn where)
{
    const QFileInfoList found =
        QDir(folder).entryInfoList({QStringLiteral("*.usmira-part*")}, QDir::Files | QDir::Hidden);
    if (found.isEmpty())
        return;
    FileClaim alone;
    alone.take(folder);
    for (const QFileInfo &info : found) {
        if (!isPart(info))
            continue;
        FileClaim claim;
        const bool left = where == PartsIn::OwnFolder ||
                          (alone.isHeld() && claim.take(info.filePath()) && claim.isHeld());
        if (left)
            tryRemoveFile(info.filePath());
    }
}
