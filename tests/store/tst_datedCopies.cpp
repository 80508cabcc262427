#include "outil/HeadlessView.h"
#include "platform/PartFiles.h"
#include "platform/SafeFile.h"
#include "platform/SameFile.h"
#include "platform/SystemFiles.h"
#include "store/DatedCopies.h"
#include "store/ParagraphStore.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using Answer = Prompts::Answer;

namespace
{
const QString Wolf = "Le Loup.usm";
const QString Names = "Le fichier de l'aventure Le Loup.usm porte aussi d'autres noms. Voulez-vous "
                      "l'enregistrer sous ce nom seul ? Les autres garderont le texte d'avant.";

struct Editor : TestAdventure {
    struct View : HeadlessView {
        using HeadlessView::HeadlessView;
        void announce(const QString &text) override { announced = text; }
        QString announced;
    };
    PromptRecorder prompts;
    View view{variables};
    AdventureCommands commands{variables, prompts, view, view};

    QString open(const QString &folder = {})
    {
        QDir().mkpath(path(folder));
        const QString path = file(folder + Wolf, AdventureBuilder({"1: Un", "2: Deux"}).bytes());
        QTEST_ASSERT(commands.OpenAdventure(path));
        return path;
    }
    bool save(const QString &text)
    {
        view.LoadParg(2);
        view.editingBox().setText(text);
        variables.ParagraphDirty = true;
        return commands.Save();
    }
    QList<DatedCopy> copies() const { return datedCopies(variables); }
};

QFile::Permissions modeOf(const QString &path)
{
    return QFile::permissions(path) &
           (QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
}
} // namespace

// What a save keeps, asks and leaves behind.
class tst_datedCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTenNewestOfEachAdventureAreKept()
    {
        Editor e;
        QVERIFY(e.open("b/").size() > 0 && e.save("dans b"));
        const QString path = e.open();
        QVERIFY(e.copies().isEmpty());
        for (int k = 1; k <= MostCopies + 2; ++k) {
            QVERIFY(e.save(QString("texte %1").arg(k)) && e.save(QString("encore %1").arg(k)));
            QVERIFY(e.commands.OpenAdventure(path));
        }
        const QList<DatedCopy> copies = e.copies();
        QCOMPARE(copies.size(), MostCopies);
        for (int k = 0; k < MostCopies; ++k)
            QVERIFY(readWholeFile(copies.at(k).path, 10000)
                        .contains("encore " + QByteArray::number(MostCopies + 1 - k)));
        QVERIFY(copies.first().kept > copies.last().kept);
        QVERIFY(e.commands.OpenAdventure(e.path("b/" + Wolf)));
        QCOMPARE(e.copies().size(), 1);
        QCOMPARE(paragraphsIn(e.copies().first()), 2);
    }

    void aCopyThatCannotBeKeptHindersNoSave()
    {
        Editor e;
        e.open();
        e.file("Dossier Usmira/Copies", "no folder");
        QVERIFY(e.save("neuf"));
        QVERIFY(e.view.announced.startsWith("L'aventure d'avant n'a pas pu être gardée"));
    }

    void aCopyOpensBesideTheAdventure()
    {
        Editor e;
        const QString path = e.open();
        QVERIFY(e.save("neuf"));
        const DatedCopy copy = e.copies().first();
        const QByteArray saved = e.content(Wolf);
        for (const QString &note : {QString(), QString(" 2")}) {
            QVERIFY(e.commands.OpenAdventure(path));
            e.commands.OpenCopy(copy);
            QCOMPARE(e.variables.AdventureFileName,
                     "Le Loup (copie du " + copy.kept.toString("yyyy-MM-dd HHmm") + note + ").usm");
            QCOMPARE(GetParagraphRtf(e.variables, 2), rtfOf("Deux"));
        }
        QCOMPARE(e.content(Wolf), saved);
        QVERIFY(e.commands.OpenAdventure(path));
        QVERIFY(QFile::resize(copy.path, 40));
        QCOMPARE(paragraphsText(e.copies().first()), "illisible");
        e.prompts.expect("Erreur de lecture de fichier.", "BUG");
        e.commands.OpenCopy(copy);
        QCOMPARE(e.variables.AdventureFileName, Wolf);
    }

    void whatBecomesOfTheOldFileIsAsked_data()
    {
        const char *readOnly = "L'aventure Le Loup.usm est protégée en écriture. Voulez-vous la "
                               "remplacer quand même ?";
        addTable<bool, QByteArray, Answer>({"writable", "question", "answer"},
                                           {{"read-only, yes", false, readOnly, Answer::Yes},
                                            {"read-only, no", false, readOnly, Answer::No},
                                            {"other names, yes", true, Names.toUtf8(), Answer::Yes},
                                            {"other names, no", true, Names.toUtf8(), Answer::No}});
    }
    void whatBecomesOfTheOldFileIsAsked()
    {
        QFETCH(bool, writable);
        QFETCH(QByteArray, question);
        QFETCH(Answer, answer);
        Editor e;
        const QString path = e.open();
        const QByteArray before = e.content(Wolf);
        if (question.contains("noms"))
            QVERIFY(!addName(path, e.path("autre.usm")));
        QVERIFY(QFile::setPermissions(path, writable ? QFile::ReadOwner | QFile::WriteOwner |
                                                           QFile::ReadGroup
                                                     : QFile::ReadOwner | QFile::ReadOther));
        const QFile::Permissions mode = modeOf(path);
#if defined(Q_OS_UNIX) && !defined(USMIRA_PORTABLE) // whose calls leave the owner
        const bool owned = ::geteuid() == 0 && ::chown(qPrintable(path), 65534, 65534) == 0;
#else
        const bool owned = false;
#endif
        e.prompts.expect(QString::fromUtf8(question), "Attention !", Prompts::Buttons::YesNo,
                         answer);
        const bool saved = answer == Answer::Yes;
        if (!saved)
            e.prompts.expect("Fichier enregistré, incapable d'échanger avec l'original.", "BUG");
        QCOMPARE(e.save("neuf"), saved);
        QCOMPARE(e.content(Wolf) != before, saved);
        QCOMPARE(modeOf(path), mode);
        QVERIFY(!owned || QFileInfo(path).ownerId() == 65534);
        if (question.contains("noms")) {
            QCOMPARE(e.content("autre.usm"), before);
            QVERIFY(!saved || e.save("encore"));
        }
    }

    // The first save of a new adventure failed, and what it was to replace is another file by now.
    void whatTookTheNameOfANewAdventureIsAsked()
    {
        Editor e;
        const QString path = e.file(Wolf, "an old file");
        QVERIFY(!addName(path, e.path("autre.usm")));
        e.prompts.expect(Names, "Attention !", Prompts::Buttons::YesNo, Answer::No);
        e.prompts.expect("Fichier enregistré, incapable d'échanger avec l'original.", "BUG");
        QVERIFY(e.commands.NewAdventure(path) && QFile::rename(path, e.path("ailleurs.usm")));
        e.file(Wolf, "a foreign file");
        e.prompts.expect("Un autre programme a modifié l'aventure Le Loup.usm depuis son "
                         "ouverture. Voulez-vous la remplacer par la vôtre ? L'autre version "
                         "sera gardée sous le nom Le Loup (autre version).usm.",
                         "Attention !", Prompts::Buttons::YesNo, Answer::Yes);
        QVERIFY(e.commands.Save());
        QCOMPARE(e.content("Le Loup (autre version).usm"), "a foreign file");
    }

    void aVanishedAdventureIsWrittenAgain()
    {
        Editor e;
        const QString path = e.open("dossier/");
        QVERIFY(QFile::rename(path, e.path("ailleurs.usm")) &&
                QDir(e.path("dossier")).removeRecursively());
        e.prompts.expect("Fichier enregistré, incapable d'échanger avec l'original.", "BUG");
        QVERIFY(!e.save("neuf"));
        QCOMPARE(GetParagraphRtf(e.variables, 1), rtfOf("Un"));
        QVERIFY(QDir().mkpath(e.path("dossier")));
        QVERIFY(e.commands.Save());
        QVERIFY(e.commands.OpenAdventure(path));
        QCOMPARE(GetParagraphRtf(e.variables, 2), rtfOf("neuf"));
        QCOMPARE(GetParagraphRtf(e.variables, 1), rtfOf("Un"));
        QCOMPARE(e.copies().size(), 1);
    }

    // A killed program left them; what is not exactly ours, or is still written, stays.
    void leftPartsGoAndNothingElse()
    {
#ifdef USMIRA_PORTABLE
        QSKIP("this system cannot tell what is still written");
#endif
        Editor e;
        const QString writing = e.file("d.htm.usmira-part.QwErTy", "half");
        const QStringList stay{"a.usm.backup", "a.usmira-part.backup2", "a.usmira-part.txt",
                               "b.usmira-partie"};
        const QStringList go{"a.usm.usmira-part", "c.htm.usmira-part", "c.htm.usmira-part.AbCdEf"};
        for (const QString &name : stay + go)
            e.file(name, "x");
        QFile running(writing);
        QVERIFY(running.open(QIODevice::ReadWrite));
        FileClaim claim;
        QVERIFY(claim.take(writing));
        writeWholeFile(e.path("z.htm"), "z", Durability::Data, Links::Follow);
        QStringList left = QDir(e.path("")).entryList(QDir::Files);
        left.sort();
        QCOMPARE(left, (stay + QStringList{QFileInfo(writing).fileName(), "z.htm"}));
    }

#ifdef Q_OS_UNIX
    void aNameThatIsNoTextIsRefused()
    {
        Editor e;
        const QString before = QDir::currentPath();
        QVERIFY(QDir().mkpath(e.path(QString("caf") + QChar(0xfffd)))); // as Qt reads the other
        const QByteArray folder = QFile::encodeName(e.path("caf")) + '\xe9';
        QVERIFY(::mkdir(folder.constData(), 0700) == 0 && ::chdir(folder.constData()) == 0);
        QVERIFY(QFile::copy(e.file("a.usm", AdventureBuilder().bytes()), "a.usm"));
        e.prompts.expect("Erreur de lecture de fichier.", "BUG");
        const bool opened = e.commands.OpenAdventure("a.usm");
        e.prompts.expect("Erreur pendant l'écriture du fichier.", "BUG");
        const bool made = e.commands.NewAdventure("b.usm");
        QVERIFY(QFile::remove("a.usm") && ::rmdir(folder.constData()) == 0);
        QVERIFY(QDir::setCurrent(before) && !opened && !made && !e.variables.AdventureOpen);
    }
#endif
};

QTEST_MAIN(tst_datedCopies)
#include "tst_datedCopies.moc"
