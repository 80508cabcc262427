#include "store/SampleAdventure.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace
{
// Installed it lies in a folder of the documents, in the source tree beside them.
QFileInfo findSample(const QString &bundledDocuments)
{
    const QStringList folders{QStringLiteral("samples"), QStringLiteral("../samples")};
    for (const QString &folder : folders) {
        const QDir place(QDir(bundledDocuments).filePath(folder));
        const QFileInfoList found =
            place.entryInfoList({QStringLiteral("*.usm")}, QDir::Files, QDir::Name);
        if (!found.isEmpty())
            return found.first();
    }
    throw FileError(FileError::Operation::Read, bundledDocuments, QStringLiteral("has no sample"),
                    std::errc::no_such_file_or_directory);
}

// Without a documents folder Qt may name the home folder, which is no place for a copy.
QDir folderOfAuthor()
{
    const QFileInfo documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    if (documents.isDir() && documents.isWritable() && documents != QFileInfo(QDir::homePath()))
        return QDir(documents.filePath());
    const QDir data(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    const QDir own(data.filePath(QStringLiteral("Usmira")));
    QDir().mkpath(own.path());
    return own;
}
} // namespace

QString copyOfSample(const QString &bundledDocuments)
{
    const QFileInfo sample = findSample(bundledDocuments);
    const QString copy = folderOfAuthor().filePath(sample.fileName());
    if (!QFileInfo::exists(copy))
        copyFile(sample.filePath(), copy);
    return copy;
}
