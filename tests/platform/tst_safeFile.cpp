#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
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
    QString written(const QString &name, const QByteArray &bytes) const
    {
        writeWholeFile(path(name), bytes, Durability::Full, Links::Replace);
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
        written(QStringLiteral("a"), "old");
        {
            SafeFile file(path(QStringLiteral("a")), Durability::Full, Links::Follow);
            file.write("half of the n");
        }
        QCOMPARE(content(QStringLiteral("a")), QByteArray("old"));
        QCOMPARE(names(), QStringList{QStringLiteral("a")});
    }

    // A disk that is full shows only when the bytes are flushed.
    void fullDiskLeavesTheTargetAndNothingElse()
    {
        written(QStringLiteral("a"), "old");
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before = {};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit small = {1000, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        const QByteArray large(100000, 'x');
        bool thrown = false;
        try {
            writeWholeFile(path(QStringLiteral("a")), large, Durability::Full, Links::Follow);
        } catch (const FileError &error) {
            thrown = error.operation() == FileError::Operation::Write;
        }
        setrlimit(RLIMIT_FSIZE, &before);
        QVERIFY(thrown);
        QCOMPARE(content(QStringLiteral("a")), QByteArray("old"));
        QCOMPARE(names(), QStringList{QStringLiteral("a")});
    }

    void linksAreFollowedOrReplacedAsAsked()
    {
        written(QStringLiteral("real"), "old");
        QVERIFY(QFile::link(path(QStringLiteral("real")), path(QStringLiteral("link"))));
        writeWholeFile(path(QStringLiteral("link")), "new", Durability::Data, Links::Follow);
        QCOMPARE(content(QStringLiteral("real")), QByteArray("new"));
        QVERIFY(QFileInfo(path(QStringLiteral("link"))).isSymLink());
        writeWholeFile(path(QStringLiteral("link")), "own", Durability::Data, Links::Replace);
        QCOMPARE(content(QStringLiteral("real")), QByteArray("new"));
        QCOMPARE(content(QStringLiteral("link")), QByteArray("own"));
        QVERIFY(!QFileInfo(path(QStringLiteral("link"))).isSymLink());
    }

    void onlyRegularFilesAreReadOrReplaced()
    {
        QVERIFY(::mkfifo(qPrintable(path(QStringLiteral("pipe"))), 0600) == 0);
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
        for (const auto &name : {QStringLiteral("pipe"), QStringLiteral("folder")}) {
            QVERIFY_THROWS_EXCEPTION(FileError, readWholeFile(path(name), 1000));
            QVERIFY_THROWS_EXCEPTION(FileError, OpenedFile(path(name)));
            QVERIFY_THROWS_EXCEPTION(
                FileError, writeWholeFile(path(name), "x", Durability::Data, Links::Follow));
        }
    }

    void movingReplacesTheTargetOrChangesNothing()
    {
        const QString source = written(QStringLiteral("new"), "new");
        const QString target = written(QStringLiteral("old"), "old");
        QVERIFY_THROWS_EXCEPTION(FileError,
                                 moveIntoPlace(source, path(QStringLiteral("none/old"))));
        QCOMPARE(content(QStringLiteral("new")), QByteArray("new"));
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
        moveIntoPlace(source, target);
        QCOMPARE(content(QStringLiteral("old")), QByteArray("new"));
        QCOMPARE(names(), QStringList{QStringLiteral("old")});
        QVERIFY(!(QFile::permissions(target) & QFile::ReadGroup));
    }

    void openedFileKeepsItsBytesWhenItsNameGoesToAnother()
    {
        OpenedFile opened(written(QStringLiteral("a"), "first"));
        QVERIFY(opened.isStillAt(path(QStringLiteral("a"))));
        written(QStringLiteral("a"), "other");
        QVERIFY(!opened.isStillAt(path(QStringLiteral("a"))));
        QCOMPARE(opened.read(1, 3), QByteArray("irs"));
        QFile::remove(path(QStringLiteral("a")));
        QCOMPARE(opened.read(0, 5), QByteArray("first"));
        QVERIFY_THROWS_EXCEPTION(FileError, opened.read(3, 3));
        QVERIFY_THROWS_EXCEPTION(FileError, opened.read(-1, 1));
    }

    void openedFileRefusesBytesThatChangedUnderIt()
    {
        OpenedFile opened(written(QStringLiteral("a"), "first"));
        QFile intruder(path(QStringLiteral("a")));
        QVERIFY(intruder.open(QIODevice::Append));
        intruder.write("!");
        intruder.close();
        QVERIFY_THROWS_EXCEPTION(FileError, opened.read(0, 5));
    }
};

QTEST_APPLESS_MAIN(tst_safeFile)
#include "tst_safeFile.moc"
