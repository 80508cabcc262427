#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

// A folder that goes with the object, in memory where the system has a folder for that: hundreds of
// files a second are written.
class Scratch
{
public:
    Scratch();

    QString path() const { return m_folder.path() + u'/'; }
    // Writes a file of that name, "Session/Etat.xyz" too, and gives its path.
    QString put(const QString &name, const QByteArray &bytes) const;

private:
    QTemporaryDir m_folder;
};

// One for as long as the program runs.
const Scratch &scratchFolder();
