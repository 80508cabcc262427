#include "platform/Errors.h"
#include "platform/FileBatch.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "platform/SameFile.h"
#include "platform/SystemFiles.h"
#include "platform/WindowsCalls.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <thread>

// What other systems do by themselves, and Windows does not.
class tst_windowsFiles : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString written(const QString &name, const QByteArray &bytes) const
    {
        writeWholeFile(path(name), bytes, Durability::Full, Links::Follow);
        return path(name);
    }
    QByteArray content(const QString &name) const { return readWholeFile(path(name), 1 << 20); }
    QStringList names() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    // As a virus scanner does: nobody else may write, rename or remove.
    std::jthread heldFor(int milliseconds, const QString &path) const
    {
        const HANDLE held = ::CreateFileW(systemName(path).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                          nullptr, OPEN_EXISTING, 0, nullptr);
        return std::jthread([=] {
            QTest::qSleep(milliseconds);
            ::CloseHandle(held);
        });
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void forbiddenNamesAreRefused()
    {
        for (const char *name :
             {"Le Loup : suite.usm", "nul", "NUL.usm", "com1.txt", "aux .x", "Pourquoi ?.usm",
              "a*.usm", "<a>.usm", "a|b", "a\"b", "Le Loup.", "Le Loup "}) {
            try {
                written(QString::fromUtf8(name), "x");
                QFAIL(name);
            } catch (const FileError &error) {
                QCOMPARE(error.why(), std::make_error_code(std::errc::invalid_argument));
            }
        }
        for (const char *name : {"Mr. Loup.usm", "nulle part.usm", "com10", "élève n° 1.usm"})
            QCOMPARE(readWholeFile(written(QString::fromUtf8(name), "x"), 10), "x");
        QCOMPARE(names().size(), 4);
    }

    void caseDoesNotCount()
    {
        const QString one = written("Le Loup.usm", "x");
        QVERIFY(isSameFile(one, path("LE LOUP.USM")));
        QVERIFY(isSameFile(path("Été.usm"), path("éTÉ.usm")));
        QVERIFY(!isSameFile(one, path("Le Loup 2.usm")));
        QCOMPARE(QFileInfo(finalPath(path("le loup.usm"))).fileName(), "Le Loup.usm");
    }

    void longPathsAreWritten()
    {
        QString folder = m_folder->path();
        for (int k = 0; k < 6; ++k)
            folder += u'/' + QString(60, QChar('a' + k));
        QVERIFY(QDir().mkpath(folder));
        const QString file = folder + "/Le Loup.usm";
        QVERIFY(file.size() > MAX_PATH);
        writeWholeFile(file, "one", Durability::Full, Links::Follow);
        OpenedFile opened(file);
        FileBatch batch;
        batch.add(file + ".htm", "two");
        batch.commit();
        keepAs(file, file + " (copie)");
        QCOMPARE(namesOf(file), 2);
        QCOMPARE(opened.read(0, 3), "one");
        QCOMPARE(readWholeFile(file + ".htm", 10), "two");
    }

    // Also when the new one comes from elsewhere, and when the old one is marked as read-only.
    void anOpenFileThatGivesWayIsReplaced()
    {
        for (const bool marked : {false, true}) {
            const QString target = written("a.usm", "the old bytes");
            const QString source = written("new", "the new bytes");
            OpenedFile old(target);
            OpenedFile fresh(source);
            if (marked)
                QVERIFY(QFile::setPermissions(target, QFile::ReadOwner));
            old.giveWay(path("elsewhere"));
            QVERIFY_THROWS_EXCEPTION(FileError, moveIntoPlace(source, target));
            old.giveWay(target);
            fresh.giveWay(source);
            moveIntoPlace(source, target);
            fresh.setPath(target);
            QCOMPARE(fresh.read(4, 3), "new");
            QVERIFY(fresh.isNamed(target) && fresh.isStillAt(target));
            QVERIFY_THROWS_EXCEPTION(FileError, old.read(0, 3));
            QCOMPARE(isReadOnly(target), marked);
            removeFile(target);
        }
        QVERIFY(names().isEmpty());
    }

    // While it is open, others may rename and remove it, and write to it.
    void anOpenFileIsInNobodysWay()
    {
        const QByteArray bytes = QByteArray("\r\n\x1a\n").repeated(500);
        const QString file = written("a.usm", bytes);
        OpenedFile opened(file);
        QCOMPARE(opened.read(0, 2000), bytes);
        QVERIFY(QFile::rename(file, path("b.usm")));
        QCOMPARE(opened.read(4, 2), "\r\n");
        QFile other(path("b.usm"));
        QVERIFY(other.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        QVERIFY(other.seek(600) && other.write("y") == 1);
        QVERIFY_THROWS_EXCEPTION(FileError, opened.read(550, 100)); // not yet closed by its writer
        QCOMPARE(opened.read(1200, 2), "\r\n");
    }

    void whoHoldsAFileForAMomentIsWaitedFor()
    {
        const QString file = written("a.usm", "old");
        const auto replace = [&] { written("a.usm", "new"); };
        {
            const std::jthread scanner = heldFor(300, file);
            replace();
        }
        QCOMPARE(content("a.usm"), "new");
        const std::jthread scanner = heldFor(3000, file);
        QElapsedTimer time;
        time.start();
        try {
            writeWholeFile(file, "newer", Durability::Full, Links::Follow);
            QFAIL("replaced what another program holds");
        } catch (const FileError &error) {
            QVERIFY(error.why() == std::errc::device_or_resource_busy ||
                    error.why() == std::errc::permission_denied);
        }
        QVERIFY(time.elapsed() >= 900);
        QCOMPARE(names(), QStringList("a.usm"));
        QCOMPARE(content("a.usm"), "new");
    }

    void aClaimIsThatOfOneProgram()
    {
        const QString file = written("a.usm", "x");
        FileClaim mine;
        FileClaim other;
        FileClaim folder;
        QVERIFY(mine.take(file) && mine.isHeld() && mine.take(path("A.USM")));
        QVERIFY(!other.take(file) && !other.isHeld());
        QVERIFY(folder.take(m_folder->path()) && !other.take(m_folder->path()));
        mine.giveUp();
        QVERIFY(other.take(file) && other.isHeld());
    }

    // The tool shuffles and saves, again and again, and is ended in the middle: what is there is
    // always a whole adventure, with every word once.
    void whoeverIsEndedLeavesAWholeAdventure()
    {
        QStringList lines;
        QStringList words;
        for (int n = 1; n <= 300; ++n) {
            words.append(QString("mot%1fin").arg(n));
            lines.append(QString("%1: %2, allez au %3.").arg(n).arg(words.last()).arg(n % 300 + 1));
        }
        const QString adventure = written("a.usm", AdventureBuilder(lines).range(1, 300).bytes());
        const QStringList options{"--dossier", path("dossier"), "--non"};
        int ended = 0;
        for (int round = 0; round < 12; ++round) {
            QProcess tool;
            QStringList script = options;
            script += {"-e", "ouvrir '" + adventure + "'"};
            for (int k = 0; k < 20; ++k)
                script += {"-e", "melanger 1 300", "-e", "enregistrer"};
            tool.start(USMIRA_OUTIL, script);
            QVERIFY(tool.waitForStarted());
            if (!tool.waitForFinished(300 + QRandomGenerator::global()->bounded(2500))) {
                tool.kill();
                ++ended;
            }
            QVERIFY(tool.waitForFinished());
            const QByteArray bytes = readWholeFile(adventure, 10 << 20);
            for (const QString &word : std::as_const(words))
                QCOMPARE(bytes.count(word.toLatin1()), 1);
        }
        QVERIFY(ended > 0);
        QProcess tool;
        tool.start(USMIRA_OUTIL, options + QStringList{"-e", "ouvrir '" + adventure + "'"});
        QVERIFY(tool.waitForFinished() && tool.exitCode() == 0);
        for (const QString &name : names())
            QVERIFY2(!name.contains("usmira-part"), qPrintable(name));
    }
};

QTEST_GUILESS_MAIN(tst_windowsFiles)
#include "tst_windowsFiles.moc"
