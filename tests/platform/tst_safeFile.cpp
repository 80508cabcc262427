#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

class tst_safeFile : public QObject
{
    Q_OBJECT

    QTemporaryDir *m_folder = nullptr;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString written(const QString &name, const QByteArray &bytes,
                    Links links = Links::Replace) const
    {
        writeWholeFile(path(name), bytes, Durability::Full, links);
        return path(name);
    }
    QByteArray content(const QString &name) const { return readWholeFile(path(name), 1000); }
    QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }

private Q_SLOTS:
    void init() { m_folder = new QTemporaryDir; }
    void cleanup() { delete m_folder; }

    void targetStaysUntilTheNewFileIsWhole()
    {
        {
            SafeFile file(written("a", "old"), Durability::Full, Links::Follow);
            file.write("half of the n");
        }
        QCOMPARE(content("a"), "old");
        QCOMPARE(names(), QStringList("a"));
    }

    // A disk that is full shows only when the bytes are flushed.
    void fullDiskLeavesTheTargetAndNothingElse()
    {
        written("a", "old");
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before = {};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit small = {1000, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        bool thrown = false;
        try {
            written("a", QByteArray(100000, 'x'), Links::Follow);
        } catch (const FileError &error) {
            thrown = error.operation() == FileError::Operation::Write;
        }
        setrlimit(RLIMIT_FSIZE, &before);
        QVERIFY(thrown);
        QCOMPARE(content("a"), "old");
        QCOMPARE(names(), QStringList("a"));
    }

    void linksAreFollowedOrReplacedAsAsked()
    {
        const QFileInfo link(path("link"));
        QVERIFY(QFile::link(written("real", "old"), link.filePath()));
        written("link", "new", Links::Follow);
        QCOMPARE(content("real"), "new");
        QVERIFY(link.isSymLink());
        written("link", "own", Links::Replace);
        QCOMPARE(content("real"), "new");
        QCOMPARE(content("link"), "own");
        QVERIFY(!QFileInfo(path("link")).isSymLink());
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
        const QString target = written("old", "old");
        QVERIFY_THROWS_EXCEPTION(FileError, moveIntoPlace(source, path("none/old")));
        QCOMPARE(content("new"), "new");
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
        moveIntoPlace(source, target);
        QCOMPARE(content("old"), "new");
        QCOMPARE(names(), QStringList("old"));
        QVERIFY(!(QFile::permissions(target) & QFile::ReadGroup));
    }

    void openedFileKeepsItsBytesOrRefuses()
    {
        OpenedFile opened(written("a", "first"));
        QVERIFY(opened.isStillAt(path("a")));
        written("a", "other");
        QVERIFY(!opened.isStillAt(path("a")));
        QCOMPARE(opened.read(1, 3), "irs");
        QFile::remove(path("a"));
        QCOMPARE(opened.read(0, 5), "first");
        QVERIFY_THROWS_EXCEPTION(FileError, opened.read(3, 3));
        QVERIFY_THROWS_EXCEPTION(FileError, opened.read(-1, 1));
        // Bytes that changed under it are not the ones that were opened.
        OpenedFile touched(written("b", "first"));
        QFile intruder(path("b"));
        QVERIFY(intruder.open(QIODevice::Append));
        intruder.write("!");
        intruder.close();
        QVERIFY_THROWS_EXCEPTION(FileError, touched.read(0, 5));
    }
};

QTEST_APPLESS_MAIN(tst_safeFile)
#include "tst_safeFile.moc"
