#include "Scratch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

Scratch::Scratch()
    : m_folder(QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                   ? QStringLiteral("/dev/shm/usmira-fuzz-XXXXXX")
                   : QDir::tempPath() + QStringLiteral("/usmira-fuzz-XXXXXX"))
{
}

QString Scratch::put(const QString &name, const QByteArray &bytes) const
{
    QFile file(m_folder.filePath(name));
    if (name.contains(u'/'))
        QDir().mkpath(QFileInfo(file).path());
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    return file.fileName();
}

const Scratch &scratchFolder()
{
    static const Scratch folder;
    return folder;
}
