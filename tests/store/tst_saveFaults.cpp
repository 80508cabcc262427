#include "outil/HeadlessView.h"
#include "outil/ScriptPrompts.h"
#include "store/ParagraphStore.h"
#include "support/AdventureBuilder.h"
#include "support/FaultyCalls.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

using FaultyCalls::Fault;

// Saving an adventure when the k-th file call of it goes wrong.
class tst_saveFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSaveSucceedsWhenTheFileIsInPlace_data()
    {
        QTest::addColumn<bool>("forGood");
        QTest::newRow("one call fails") << false;
        QTest::newRow("the disk goes") << true;
    }
    void aSaveSucceedsWhenTheFileIsInPlace()
    {
        if (FaultyCalls::OutOfReach)
            QSKIP("plain calls hide the faults");
        QFETCH(bool, forGood);
        int failed = 0;
        int done = 0;
        for (int call = 1;; ++call) {
            const TestAdventure adventure;
            Variables v = adventure.variables;
            QString said;
            QTextStream errors(&said);
            ScriptPrompts prompts(errors, std::nullopt);
            HeadlessView view(v);
            AdventureCommands commands(v, prompts, view, view);
            const auto type = [&](int n, const QString &text) {
                view.LoadParg(n);
                view.editingBox().setText(text);
                v.ParagraphDirty = true;
                SaveCurParg(v, view.editingBox());
            };
            const QString name = QStringLiteral("a.usm");
            const QByteArray bytes = AdventureBuilder({QStringLiteral("1: Fin")}).bytes();
            const QString path = adventure.file(name, bytes);
            QVERIFY(commands.OpenAdventure(path));
            type(1, QStringLiteral("neuf"));
            type(2, QStringLiteral("deux"));

            const QString folder = QFileInfo(path).absolutePath();
            FaultyCalls::arm(folder, forGood ? Fault::FailOn : Fault::FailOnce, call);
            const bool saved = commands.Save();
            if (FaultyCalls::disarm() < call)
                break; // the save came to its end before
            ++(saved ? done : failed);
            QCOMPARE(saved, adventure.content(name) != bytes);
            QCOMPARE(v.AdventureModified, !saved);
            QCOMPARE(said.isEmpty(), saved);

            // The next one asks nothing, and all is in the file.
            said.clear();
            type(2, QStringLiteral("encore"));
            QVERIFY(commands.Save());
            QCOMPARE(said, QString());
            QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList{name});
            QVERIFY(adventure.content(name).contains("neuf"));
        }
        // One call that fails leaves another folder for the new file.
        QVERIFY2(failed > (forGood ? 3 : 0) && done > 2, "the calls were not reached");
    }
};

QTEST_MAIN(tst_saveFaults)
#include "tst_saveFaults.moc"
