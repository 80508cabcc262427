#include "Targets.h"

#include <QDir>
#include <QTest>

// What fuzzing starts from and what it has found before, without a fuzzer.
class tst_fuzzTargets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theirPromisesHold_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<QByteArray>("bytes");
        for (int i = 0; i < fuzzTargets().size(); ++i) {
            const FuzzTarget &target = fuzzTargets().at(i);
            for (const QByteArray &seed : target.seeds())
                QTest::addRow("%s %lld", target.name, seed.size()) << i << seed;
            const QDir found(QStringLiteral(USMIRA_TEST_DATA "/fuzz/") + target.name);
            for (const QString &name : found.entryList(QDir::Files)) {
                QFile file(found.filePath(name));
                QVERIFY(file.open(QIODevice::ReadOnly));
                QTest::addRow("%s %s", target.name, qPrintable(name)) << i << file.readAll();
            }
        }
    }
    void theirPromisesHold()
    {
        QFETCH(int, target);
        QFETCH(QByteArray, bytes);
        try {
            fuzzTargets().at(target).run(bytes);
        } catch (const std::exception &error) {
            QFAIL(error.what());
        }
    }

    void aBrokenPromiseIsSeen()
    {
        QVERIFY_THROWS_EXCEPTION(std::logic_error, promise(false, "no"));
        promise(true, "yes");
    }
};

QTEST_MAIN(tst_fuzzTargets)
#include "tst_fuzzTargets.moc"
