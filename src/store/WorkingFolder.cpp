#include "store/WorkingFolder.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "store/WorkingFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace
{
QString workingFolderIn(const QString &folder)
{
    return QDir::toNativeSeparators(QDir(folder).filePath(QStringLiteral("Dossier Usmira"))) +
           QDir::separator();
}
} // namespace

QString findWorkingFolder(const QString &programFolder)
{
    const QString beside = workingFolderIn(programFolder);
    const QFileInfo info(beside);
    if (info.isDir() && info.isWritable())
        return beside;
    return workingFolderIn(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

QString findBundledDocuments(const QString &programFolder)
{
    // Installed for all, or carried with the program.
    for (const QString &place : {QStringLiteral("../share/usmira"), QStringLiteral("documents")})
        if (QFileInfo(QDir(programFolder).filePath(place)).isDir())
            return QDir(programFolder).filePath(place);
    return QStringLiteral(USMIRA_RESOURCES);
}

void prepareWorkingFolder(const QString &workingFolder, const QString &bundledDocuments)
{
    if (QFileInfo::exists(workingFolder))
        return;
    QDir().mkpath(workingFolder);
    const QStringList names = WorkingFiles::documentNames();
    for (const QString &name : names) {
        try {
            copyFile(QDir(bundledDocuments).filePath(name), workingFolder + name);
        } catch (const UsmiraError &) {
            continue;
        }
    }
}

void makeWorkingFolder(const QString &workingFolder)
{
    prepareWorkingFolder(workingFolder,
                         findBundledDocuments(QCoreApplication::applicationDirPath()));
}
