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
    return QCryptographicHash::hash(readWholeFile(path, LongestDocument),
                                    QCryptographicHash::Sha256)
        .toHex();
}

// Says whether there is a new delivery. Throws UsmiraError when a document cannot be read or
// written.
bool deliver(const QString &from, const QString &to, bool first, QByteArray &delivered)
{
    const QByteArray newest = checksumOf(from);
    if (newest == delivered)
        return false;
    const bool there = QFileInfo::exists(to);
    const QByteArray present = there ? checksumOf(to) : QByteArray();
    if (there ? present != (first ? newest : delivered) : !first)
        return false;
    if (present != newest)
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
    // Installed for all; still in the tree where it was built; or carried with the program.
    const QDir folder(programFolder);
    for (const QString &place :
         {QStringLiteral("../share/usmira"), QStringLiteral("../../../../resources/documents")})
        if (QFileInfo(folder.filePath(place)).isDir())
            return folder.filePath(place);
    return folder.filePath(QStringLiteral("documents"));
}

void prepareWorkingFolder(const QString &workingFolder, const QString &bundledDocuments)
{
    QDir().mkpath(workingFolder);
    const QString list = WorkingFiles(workingFolder).deliveries();
    const bool first = !QFileInfo::exists(list);
    Deliveries deliveries = readDeliveries(list);
    bool changed = false;
    const QStringList names = WorkingFiles::documentNames();
    for (const QString &name : names) {
        try {
            changed |= deliver(QDir(bundledDocuments).filePath(name), workingFolder + name, first,
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
    if (!QFileInfo::exists(workingFolder))
        prepareWorkingFolder(workingFolder,
                             findBundledDocuments(QCoreApplication::applicationDirPath()));
}
