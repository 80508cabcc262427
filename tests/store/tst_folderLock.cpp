#include "outil/HeadlessView.h"
#include "platform/SystemFiles.h"
#include "store/AdventureCommands.h"
#include "store/FolderLock.h"
#include "store/WorkingFiles.h"
#include "store/WorkingFolder.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace
{
void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}
} // namespace

class tst_folderLock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyARunningProgramKeepsOthersOut_data()
    {
        addTable<QByteArray>({"lock"},
                             {{"empty", QByteArray()},
                              {"of a process that is gone", QByteArray("999999\nusmira\nhost\n")},
                              {"of a process that is another by now",
                               QByteArray::number(QCoreApplication::applicationPid()) + "\nx\n\n"},
                              {"no lock at all", QByteArray(5000, 'x')}});
    }
    void onlyARunningProgramKeepsOthersOut()
    {
        const TestAdventure adventure;
        const QString folder = adventure.variables.WorkingFolder;
        QDir().mkpath(WorkingFiles(folder).session());
        QFETCH(QByteArray, lock);
        write(WorkingFiles(folder).lock(), lock);
        QCOMPARE(takeWorkingFolder(folder, {}, LeftSessions::First).folder, folder);
        QVERIFY(!QFileInfo::exists(WorkingFiles(folder).session()));
    }

    void theSecondProgramHasAFolderOfItsOwn()
    {
        const TestAdventure adventure;
        const QString folder = adventure.variables.WorkingFolder;
        write(WorkingFiles(folder).settings(), "settings of the first");
        const WorkingPlace first = takeWorkingFolder(folder, {}, LeftSessions::First);
#ifndef USMIRA_PORTABLE
        QDir(WorkingFiles(folder).session()).removeRecursively(); // by a cleaner, say
#endif
        const WorkingPlace second = takeWorkingFolder(folder, {}, LeftSessions::First);
        const WorkingPlace place = takeWorkingFolder(folder, {}, LeftSessions::First);
        QCOMPARE(first.folder, folder);
        QCOMPARE(second.folder, folder + "2" + QDir::separator());
        QCOMPARE(place.folder, folder + "3" + QDir::separator());
        QFile settings(WorkingFiles(place.folder).settings());
        QVERIFY(settings.open(QIODevice::ReadOnly));
        QCOMPARE(settings.readAll(), QByteArray("settings of the first"));
    }

    void aNewerProgramRenewsWhatWasLeftAlone()
    {
        const TestAdventure adventure;
        const QString bundled = adventure.path("documents/");
        const QString folder = adventure.path("new/");
        QVERIFY(QDir().mkpath(bundled) && QDir().mkpath(folder)); // made by hand, on a stick
        const QStringList names{"Welcome.rtf", "English Help.rtf", "Copyright.rtf"};
        const auto deliver = [&](const QByteArray &bytes) {
            for (const QString &name : names)
                write(bundled + name, bytes);
            prepareWorkingFolder(folder, bundled);
        };
        deliver("first");
        write(folder + names.at(1), "the author's");
        QVERIFY(QFile::remove(folder + names.at(2)));
        for (const QByteArray bytes : {"second", "third"}) {
            deliver(bytes);
            QCOMPARE(adventure.content("new/" + names.at(0)), bytes);
            QCOMPARE(adventure.content("new/" + names.at(1)), QByteArray("the author's"));
            QVERIFY(!QFile::exists(folder + names.at(2)));
        }
    }

    void anAdventureOpenElsewhereIsNotReplaced()
    {
#ifdef USMIRA_PORTABLE
        QSKIP("this system knows no claims");
#endif
        TestAdventure adventure;
        const QString path = adventure.file("Le Loup.usm", AdventureBuilder({"1: Un"}).bytes());
        PromptRecorder prompts;
        HeadlessView view(adventure.variables);
        AdventureCommands commands(adventure.variables, prompts, view, view);
        const auto open = [&](Prompts::Answer answer) {
            prompts.expect("L'aventure Le Loup.usm est déjà ouverte dans une autre fenêtre "
                           "d'Usmira. Voulez-vous en ouvrir une copie, Le Loup (copie).usm ? "
                           "Sinon, vous pourrez la lire, mais pas l'enregistrer tant que l'autre "
                           "fenêtre la tient.",
                           "Songez-y", Prompts::Buttons::YesNoCancel, answer);
            return commands.OpenAdventure(path);
        };
        FileClaim other;
        QVERIFY(other.take(path));
        QVERIFY(!open(Prompts::Answer::Cancel));
        QVERIFY(!adventure.variables.AdventureOpen);
        QVERIFY(open(Prompts::Answer::No));
        view.editingBox().setText("Deux");
        adventure.variables.ParagraphDirty = true;
        prompts.expect("Erreur pendant l'écriture du fichier.", "BUG");
        QVERIFY(!commands.Save());
        other.giveUp();
        QVERIFY(commands.Save());
        QVERIFY(!other.take(path)); // the saved file is another one, and ours
        QVERIFY(commands.OpenAdventure(adventure.file("b.usm", AdventureBuilder().bytes())));
        QVERIFY(other.take(path));
        QVERIFY(open(Prompts::Answer::Yes));
        QCOMPARE(adventure.variables.AdventureFileName, "Le Loup (copie).usm");
    }
};

QTEST_MAIN(tst_folderLock)
#include "tst_folderLock.moc"
