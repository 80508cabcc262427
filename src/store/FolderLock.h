#pragma once

#include "platform/SystemFiles.h"

#include <QLockFile>
#include <QString>
#include <memory>

// Keeps other programs out of a working folder as long as it lives. Only a program that runs does:
// not a lock that a killed one has left, nor anything else of its name.
class FolderLock
{
public:
    // Makes the folder "Session" in the working folder, for the lock to lie in.
    explicit FolderLock(const QString &workingFolder);
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

    // Whether another program works there.
    bool isTaken() const { return m_taken; }

private:
    QString m_workingFolder;
    FileClaim m_claim;
    QLockFile m_file;
    bool m_taken = false;
};

// What to do about a free working folder where a program that was killed has left its session.
enum class LeftSessions {
    First, // work there, so that it can be offered
    Avoid, // leave it alone
};

// A working folder to oneself.
struct WorkingPlace {
    QString folder; // ends with a separator
    std::unique_ptr<FolderLock> lock;
};

// The working folder, prepared with the bundled documents. While other programs work there it is a
// private folder inside, "2", "3" and so on, with the settings and documents of the main one as
// they are now. Failures are ignored: the program starts without.
WorkingPlace takeWorkingFolder(const QString &workingFolder, const QString &bundledDocuments,
                               LeftSessions leftSessions);
