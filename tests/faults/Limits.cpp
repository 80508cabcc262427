#include "Limits.h"

#include <QDir>
#include <QFile>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

namespace
{
constexpr int Nobody = 65534;
constexpr qint64 Step = 512;
constexpr qint64 MostBytes = 16 * 1024; // more than any file that is written here

void note(Tally &tally, const QString &where, const QString &loss)
{
    ++tally.tried;
    if (loss.isEmpty())
        ++tally.survived;
    else
        tally.losses.append(where + QStringLiteral(": ") + loss);
}

std::optional<Tally> shortFiles(const Sweep &sweep, const ToolRun &run, int every, int offset)
{
    Tally tally;
    for (qint64 bytes = offset % every * Step; bytes <= MostBytes; bytes += every * Step) {
        sweep.begin();
        const auto limit = [bytes] {
            const rlimit size{static_cast<rlim_t>(bytes), static_cast<rlim_t>(bytes)};
            ::setrlimit(RLIMIT_FSIZE, &size);
        };
        note(tally, QStringLiteral("files of %1 bytes").arg(bytes),
             sweep.loss(run.changed(limit).script(sweep.script())));
    }
    return tally;
}

// A file system of the folder's own while it lives.
class SmallDisk
{
public:
    explicit SmallDisk(const QString &folder) : m_folder(QFile::encodeName(folder))
    {
        QDir().mkpath(folder);
        m_mounted = ::mount("none", m_folder.constData(), "tmpfs", 0, "size=4m") == 0;
    }
    ~SmallDisk()
    {
        if (m_mounted)
            ::umount2(m_folder.constData(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool isMounted() const { return m_mounted; }
    void setSize(qint64 bytes) const
    {
        const QByteArray size = "size=" + QByteArray::number(bytes);
        ::mount("none", m_folder.constData(), "tmpfs", MS_REMOUNT, size.constData());
    }

private:
    const QByteArray m_folder;
    bool m_mounted;
};

std::optional<Tally> fullDisk(const Sweep &sweep, const ToolRun &run, int every, int offset)
{
    const SmallDisk disk(run.folder());
    if (!disk.isMounted())
        return std::nullopt;
    constexpr qint64 page = 4096;
    Tally tally;
    for (qint64 room = offset % every; room <= 24; room += every) {
        disk.setSize(1024 * page);
        sweep.begin();
        qint64 used = 0;
        for (const QByteArray &bytes : filesIn(run.folder()))
            used += (bytes.size() + page - 1) / page;
        disk.setSize((used + room) * page);
        const RunResult result = run.script(sweep.script());
        disk.setSize(1024 * page);
        note(tally, QStringLiteral("room for %1 pages").arg(room), sweep.loss(result));
    }
    return tally;
}

// Only root may give a folder to somebody else; others are kept out by its rights themselves.
std::optional<Tally> readOnlyFolders(const Sweep &sweep, const ToolRun &run, int every, int offset)
{
    const bool isRoot = ::geteuid() == 0;
    const auto becomeNobody = [isRoot] {
        if (isRoot && (::setgid(Nobody) != 0 || ::setuid(Nobody) != 0))
            ::_exit(FaultyCalls::Killed);
    };
    QFile::setPermissions(QFileInfo(run.folder()).path(), QFile::Permissions(0x7755));
    const QStringList all{QString(), QStringLiteral("/w"), QStringLiteral("/out")};
    Tally tally;
    const int cases = (1 << all.size()) - 1;
    for (int closed = 1 + offset % qMin(every, cases); closed <= cases; closed += every) {
        sweep.begin();
        const QStringList names = QStringList{QString()} + filesIn(run.folder()).keys();
        for (const QString &name : names)
            if (isRoot && ::chown(QFile::encodeName(run.folder() + u'/' + name).constData(), Nobody,
                                  Nobody) != 0)
                return std::nullopt;
        const auto allow = [&](QFile::Permissions rights) {
            for (qsizetype i = 0; i < all.size(); ++i)
                if ((closed >> i & 1) != 0)
                    QFile::setPermissions(run.folder() + all.at(i), rights);
        };
        allow(QFile::Permissions(0x5555));
        const RunResult result = run.changed(becomeNobody).script(sweep.script());
        allow(QFile::Permissions(0x7755));
        note(tally, QStringLiteral("folders %1").arg(closed), sweep.loss(result));
    }
    return tally;
}
} // namespace

const QList<Limit> &limits()
{
    static const QList<Limit> all{{QStringLiteral("taille de fichier limitée"), &shortFiles},
                                  {QStringLiteral("petit disque"), &fullDisk},
                                  {QStringLiteral("dossiers en lecture seule"), &readOnlyFolders}};
    return all;
}
