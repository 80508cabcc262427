#include "store/WorkingFolder.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "store/WorkingFiles.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QStandardPaths>

namespace
{
QString workingFolderIn(const QString &folder)
{
    return QDir::toNativeSeparators(QDir(folder).filePath(QStringLiteral("Dossier Usmira"))) +
           QDir::separator();
}

// What was delivered last, by name: lines of a checksum and a name. By it a newer program tells a
// document that the author has left as it was from one that he has made his own.
using Deliveries = QMap<QByteArray, QByteArray>;

constexpr qint64 LongestDocument = 10'000'000;

Deliveries readDeliveries(const QString &path)
{
    Deliveries deliveries;
    try {
        const QList<QByteArray> lines = readWholeFile(path, LongestDocument).split('\n');
        for (const QByteArray &line : lines)
            if (const qsizetype blank = line.indexOf(' '); blank > 0)
                deliveries.insert(line.mid(blank + 1).trimmed(), line.left(blank));
    } catch (const UsmiraError &) {
        return {}; // a new folder, or one of a time when nothing was noted
    }
    return deliveries;
}

void writeDeliveries(const QString &path, const Deliveries &deliveries)
{
    QByteArray lines;
    for (auto it = deliveries.begin(); it != deliveries.end(); ++it)
        if (!it.value().isEmpty())
            lines += it.value() + ' ' + it.key() + "\r\n";
    writeWholeFile(path, lines, Durability::Data, Links::Replace);
}

QByteArray checksumOf(const QString &path)
{
    return QCryptographicHash::hash(readWholeFile(path, LongestDocument), QCryptographicHash::Sha256)
        .toHex();
}

// Says whether it has changed anything. Throws UsmiraError when the document cannot be read,
// which is so too when the author has removed it, or cannot be written.
bool deliver(const QString &from, const QString &to, bool folderIsNew, QByteArray &delivered)
{
    const QByteArray newest = checksumOf(from);
    if (newest == delivered || (!folderIsNew && checksumOf(to) != delivered))
        return false;
    copyFile(from, to);
    delivered = newest;
    return true;
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
    const bool isNew = !QFileInfo::exists(workingFolder);
    QDir().mkpath(workingFolder);
    const QString list = WorkingFiles(workingFolder).deliveries();
    Deliveries deliveries = readDeliveries(list);
    bool changed = false;
    const QStringList names = WorkingFiles::documentNames();
    for (const QString &name : names) {
        try {
            changed |= deliver(QDir(bundledDocuments).filePath(name), workingFolder + name, isNew,
                               deliveries[name.toUtf8()]);
        } catch (const UsmiraError &) {
            continue;
        }
    }
    try {
        if (changed)
            writeDeliveries(list, deliveries);
    } catch (const UsmiraError &) {
        return;
    }
}

void makeWorkingFolder(const QString &workingFolder)
{
    prepareWorkingFolder(workingFolder,
                         findBundledDocuments(QCoreApplication::applicationDirPath()));
}
