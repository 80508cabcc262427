#include "platform/Errors.h"
#include "platform/FileBatch.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "platform/SameFile.h"
#include "support/TestTable.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>

class tst_safeFile : public QObject
{
    Q_OBJECT

    static constexpr qint64 Size = 4 * 65536 - 100; // four blocks

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString written(const QString &name, const QByteArray &bytes,
                    Links links = Links::Replace) const
    {
        writeWholeFile(path(name), bytes, Durability::Full, links);
        return path(name);
    }
    QByteArray content(const QString &name) const { return readWholeFile(path(name), 1000); }
    QStringList names() const { return QDir(m_folder->path()).entryList(QDir::Files); }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    // A disk that is full shows only when the bytes are flushed.
    void halfAFileLeavesTheTargetAndNothingElse()
    {
        SafeFile(written("a", "old"), Durability::Full, Links::Follow).write("half of the n");
        QCOMPARE(content("a"), "old");
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before = {};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit small = {1000, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        QVERIFY_THROWS_EXCEPTION(FileError, written("a", QByteArray(100000, 'x'), Links::Follow));
        setrlimit(RLIMIT_FSIZE, &before);
        QCOMPARE(content("a"), "old");
        QCOMPARE(names(), QStringList("a"));
    }

    // By every way of writing; all the links stay.
    void chainsOfLinksAreFollowedToTheirEnd()
    {
        const Table<QStringList, QString> rows{
            {"a link to a link", {"link>@/middle", "middle>@/real"}, "real"},
            {"relative", {"link>sub/middle", "sub/middle>../real"}, "real"},
            {"through a linked folder",
             {"far>sub/deep", "link>far/middle", "sub/deep/middle>../real"},
             "sub/real"},
            {"to no file yet", {"link>middle", "middle>new"}, "new"},
            {"in a circle", {"link>middle", "middle>link"}, ""}};
        for (const auto &[name, links, end] : rows) {
            init();
            QVERIFY(QDir(m_folder->path()).mkpath("sub/deep"));
            written("real", "old");
            written("sub/real", "old");
            for (const QString &link : links)
                QVERIFY(QFile::link(link.section(u'>', 1).replace(u'@', m_folder->path()),
                                    path(link.section(u'>', 0, 0))));
            const QList<std::function<void(const QByteArray &)>> ways{
                [&](const QByteArray &bytes) { written("link", bytes, Links::Follow); },
                [&](const QByteArray &bytes) {
                    moveIntoPlace(written("source", bytes), path("link"));
                },
                [&](const QByteArray &bytes) {
                    FileBatch batch;
                    batch.add(path("link"), bytes);
                    batch.commit();
                }};
            QByteArray bytes;
            for (const auto &way : ways) {
                bytes += 'x';
                if (end.isEmpty()) {
                    QVERIFY_THROWS_EXCEPTION(FileError, way(bytes));
                    continue;
                }
                way(bytes);
                QCOMPARE(content(end), bytes);
                QVERIFY(isSameFile(path("link"), path(end)));
            }
            for (const QString &link : links)
                QVERIFY(QFileInfo(path(link.section(u'>', 0, 0))).isSymLink());
            written("link", "own", Links::Replace);
            QVERIFY(content("link") == "own" && !QFileInfo(path("link")).isSymLink());
        }
    }

    void onlyRegularFilesAreReadOrReplaced()
    {
        QVERIFY(::mkfifo(qPrintable(path("pipe")), 0600) == 0);
        QVERIFY(QDir(m_folder->path()).mkdir("folder"));
        for (const char *name : {"pipe", "folder"}) {
            QVERIFY_THROWS_EXCEPTION(FileError, content(name));
            QVERIFY_THROWS_EXCEPTION(FileError, OpenedFile(path(name)));
            QVERIFY_THROWS_EXCEPTION(FileError, written(name, "x", Links::Follow));
        }
    }

    void movingReplacesTheTargetOrChangesNothing()
    {
        const QString source = written("new", "new");
        QVERIFY_THROWS_EXCEPTION(FileError, moveIntoPlace(source, path("none/old")));
        QCOMPARE(content("new"), "new");
        const QString target = written("old", "old");
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
        moveIntoPlace(source, target);
        QCOMPARE(content("old"), "new");
        QCOMPARE(names(), QStringList("old"));
        QVERIFY(!(QFile::permissions(target) & QFile::ReadGroup));
    }

    void openedFileKeepsItsBytesWhateverTakesItsName()
    {
        OpenedFile opened(written("a", "first"));
        QVERIFY(opened.isStillAt(path("a")));
        written("a", "other");
        QVERIFY(!opened.isStillAt(path("a")));
        QCOMPARE(opened.read(1, 3), "irs");
        written("a", "first");
        QVERIFY(opened.isStillAt(path("a")));
        QFile::remove(path("a"));
        QCOMPARE(opened.read(0, 5), "first");
        QVERIFY_THROWS_EXCEPTION(FileError, opened.read(3, 3));
        QVERIFY_THROWS_EXCEPTION(FileError, opened.read(-1, 1));
    }

    // Written over in its place: what was there is never mixed with what is there.
    void openedFileComparesWhatIsUsed()
    {
        const Table<qint64, QByteArray, bool, bool> rows{{"touched", 0, "x", true, true},
                                                         {"its beginning", 0, "y", false, true},
                                                         {"its end", Size - 1, "y", false, false},
                                                         {"longer", Size, "y", false, true}};
        for (const auto &[name, at, bytes, whole, end] : rows) {
            OpenedFile opened(written("a", QByteArray(Size, 'x')));
            QFile file(path("a"));
            QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) && file.seek(at));
            QCOMPARE(file.write(bytes), 1);
            QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(1),
                                     QFileDevice::FileModificationTime));
            file.close();
            QCOMPARE(opened.isStillAt(path("a")), whole);
            if (!end)
                QVERIFY_THROWS_EXCEPTION(FileError, opened.read(Size - 2, 2));
            QCOMPARE(opened.read(2 * 65536 - 1, 2), "xx"); // from two blocks that nobody touched
        }
    }
};

QTEST_APPLESS_MAIN(tst_safeFile)
#include "tst_safeFile.moc"
