#include "platform/SameFile.h"

#include <QDir>
#include <QFileInfo>
#include <filesystem>

QString finalPath(const QString &path)
{
    constexpr int mostLinks = 128; // links may lead in a circle
    QFileInfo info(path);
    for (int links = 0; info.isSymLink() && links < mostLinks; ++links)
        info.setFile(info.symLinkTarget());
    return QDir(info.absolutePath()).canonicalPath() + u'/' + info.fileName();
}

bool isSameFile(const QString &one, const QString &other)
{
    std::error_code missing; // one of them does not exist: then no hard link joins them
    return finalPath(one) == finalPath(other) ||
           std::filesystem::equivalent(QFileInfo(one).filesystemFilePath(),
                                       QFileInfo(other).filesystemFilePath(), missing);
}

bool hasOtherNames(const QString &path)
{
    std::error_code missing;
    const auto names =
        std::filesystem::hard_link_count(QFileInfo(path).filesystemFilePath(), missing);
    return !missing && names > 1;
}
