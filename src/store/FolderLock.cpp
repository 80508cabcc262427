#include "store/FolderLock.h"

#include "platform/Errors.h"
#include "platform/PartFiles.h"
#include "platform/SafeFile.h"
#include "store/Journal.h"
#include "store/SessionRecovery.h"
#include "store/WorkingFiles.h"
#include "store/WorkingFolder.h"

#include <QDir>
#include <QFileInfo>

namespace
{
constexpr int MostPlaces = 99;

void removeNoFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.isSymLink() || !info.isDir())
        return;
    QDir().rmdir(path);
}

// What the author sees there; his own changes in a private folder go with the next start.
void copySettings(const WorkingFiles &from, const WorkingFiles &to)
{
    for (const auto path :
         {&WorkingFiles::settings, &WorkingFiles::maximized, &WorkingFiles::comfort}) {
        tryRemoveFile((to.*path)());
        if (!QFileInfo((from.*path)()).isFile())
            continue;
        try {
            copyFile((from.*path)(), (to.*path)());
        } catch (const UsmiraError &) {
            continue;
        }
    }
}
} // namespace

// The folder itself is claimed first: that needs no room on the disk and no right to write, and
// nobody can remove it by hand. The file is for systems that know no claims. One that is no lock of
// a running program is told by the lock that the system keeps on it: its age, the process it names
// and its length say nothing.
FolderLock::FolderLock(const QString &workingFolder)
    : m_workingFolder(workingFolder), m_file(WorkingFiles(workingFolder).lock())
{
    m_taken = !m_claim.take(workingFolder);
    if (m_taken)
        return;
    m_file.setStaleLockTime(0);
    try {
        makeSessionFolder(workingFolder);
    } catch (const UsmiraError &) {
        return;
    }
    removeNoFile(WorkingFiles(workingFolder).lock());
    // By this QLockFile takes stale locks away; one that a killed start has left is in its way.
    tryRemoveFile(WorkingFiles(workingFolder).lock() + QStringLiteral(".rmlock"));
    if (m_file.tryLock() || m_file.error() != QLockFile::LockFailedError)
        return;
    m_file.removeStaleLockFile();
    m_taken = !m_file.tryLock() && m_file.error() == QLockFile::LockFailedError;
}

FolderLock::~FolderLock()
{
    const bool own = m_file.isLocked();
    m_file.unlock();
    if (own)
        removeSessionFolder(m_workingFolder);
}

WorkingPlace takeWorkingFolder(const QString &workingFolder, const QString &bundledDocuments,
                               LeftSessions leftSessions)
{
    prepareWorkingFolder(workingFolder, bundledDocuments);
    const auto placeOf = [&](int k) {
        return k == 1 ? workingFolder : workingFolder + QString::number(k) + QDir::separator();
    };
    const auto take = [&](int k) {
        if (k > 1)
            prepareWorkingFolder(placeOf(k), workingFolder);
        WorkingPlace place{placeOf(k), std::make_unique<FolderLock>(placeOf(k))};
        if (k > 1 && !place.lock->isTaken())
            copySettings(WorkingFiles(workingFolder), WorkingFiles(place.folder));
        return place;
    };
    for (int k = 1; leftSessions == LeftSessions::First && k <= MostPlaces; ++k) {
        if (!hasLeftSession(placeOf(k)))
            continue;
        WorkingPlace place = take(k);
        if (!place.lock->isTaken() && hasLeftSession(place.folder))
            return place;
    }
    for (int k = 1; k < MostPlaces; ++k) {
        if (leftSessions == LeftSessions::Avoid && hasLeftSession(placeOf(k)))
            continue;
        WorkingPlace place = take(k);
        if (!place.lock->isTaken())
            return place;
    }
    return take(MostPlaces);
}
