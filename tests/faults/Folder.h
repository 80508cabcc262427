#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

// What lies in a folder and below, by relative names.
using Files = QMap<QString, QByteArray>;

Files filesIn(const QString &folder);

// Makes the folder hold these files, and folders, and nothing else.
void restore(const QString &folder, const Files &files);
