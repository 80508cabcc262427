#include "Folder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

Files filesIn(const QString &folder)
{
    Files files;
    const QDir top(folder);
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        QFile file(path);
        const bool isFolder = entries.fileInfo().isDir();
        if (!isFolder)
            file.open(QIODevice::ReadOnly);
        files.insert(top.relativeFilePath(path) + (isFolder ? QStringLiteral("/") : QString()),
                     isFolder ? QByteArray() : file.readAll());
    }
    return files;
}

void restore(const QString &folder, const Files &files)
{
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    for (auto entry = files.begin(); entry != files.end(); ++entry) {
        const QString path = folder + u'/' + entry.key();
        if (entry.key().endsWith(u'/')) {
            QDir().mkpath(path);
            continue;
        }
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(entry.value());
    }
}
