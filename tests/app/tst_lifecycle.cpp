#include "WindowFixture.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>

namespace
{
AdventureBuilder oneText()
{
    return AdventureBuilder({QStringLiteral("12: Une porte. Allez au 3.")}).current(12);
}

void expectQuestion(WindowFixture &fixture, Prompts::Answer answer)
{
    fixture.prompts.expect(
        QStringLiteral("ATTENTION : Vous n'avez pas enregistré l'aventure Le Loup.usm. Voulez-vous "
                       "le faire? Sinon, vous perdrez tous les changements!"),
        QStringLiteral("Rappel amical"), Prompts::Buttons::YesNoCancel, answer);
}

void deactivate(const WindowFixture &fixture)
{
    QEvent event(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(fixture.window.get(), &event);
}

// Another window of the program, as a dialog that has started the work.
class CountingWindow : public QWidget
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent * /*event*/) override { ++paints; }
};
} // namespace

using Command = std::function<void(WindowFixture &)>;
Q_DECLARE_METATYPE(Command)

// Start-up, settings, saving on the way out, and a story from end to end.
class tst_lifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingsComeBackAtTheNextStart()
    {
        WindowFixture fixture;
        fixture.adventure.file(QStringLiteral("Dossier Usmira/Copyright.rtf"),
                               rtfOf(QStringLiteral("Bienvenue")));
        QVERIFY(!fixture.control<QWidget>("frameTabPanel").isVisible());
        QCOMPARE(fixture.box().text(), QString());
        fixture.click("btnMore");
        fixture.window->resize(640, 480);
        QVERIFY(fixture.window->close());
        fixture.adventure.variables.showTabPanel = 0;
        fixture.start();
        QCOMPARE(fixture.window->size(), QSize(640, 480));
        QVERIFY(fixture.control<QWidget>("frameTabPanel").isVisible());
        QVERIFY(fixture.control<QToolButton>("btnMore").isChecked());
        QCOMPARE(fixture.box().text(), QStringLiteral("Bienvenue"));
    }

    void closingAsksAboutUnsavedChanges()
    {
        using Answer = Prompts::Answer;
        for (const Answer answer : {Answer::Yes, Answer::No, Answer::Cancel}) {
            const bool closes = answer != Answer::Cancel;
            WindowFixture fixture(oneText());
            fixture.type(" Du neuf.");
            expectQuestion(fixture, answer);
            QCOMPARE(fixture.window->close(), closes);
            QCOMPARE(fixture.window->isVisible(), !closes);
            const QByteArray file = fixture.adventure.content(QStringLiteral("Le Loup.usm"));
            QCOMPARE(file.contains("Du neuf."), answer == Answer::Yes);
            const QStringList files = fixture.adventure.workingFiles();
            QCOMPARE(files.contains(QStringLiteral("LL-0012.rtf")), !closes);
            QVERIFY(files.contains(QStringLiteral("Usmira Settings.xyz")));
        }
    }

    void failedSaveKeepsTheWindowOpen()
    {
        WindowFixture fixture(oneText());
        fixture.type(" Du neuf.");
        fixture.window->SaveCurParg();
        // The temporary save file cannot be written: a folder has its name.
        QVERIFY(QDir(fixture.adventure.variables.WorkingFolder)
                    .mkdir(QStringLiteral("Usmira Temporary Save File.xyz")));
        expectQuestion(fixture, Prompts::Answer::Yes);
        fixture.prompts.expect(QStringLiteral("Erreur pendant l'écriture du fichier."),
                               QStringLiteral("BUG"));
        QVERIFY(!fixture.window->close());
        QVERIFY(fixture.adventure.variables.AdventureModified);
        QVERIFY(fixture.box().isVisible());
    }

    void showingAParagraphChangesNothing()
    {
        const WindowFixture fixture(oneText());
        fixture.click("btnNext");
        fixture.click("btnPrev");
        QVERIFY(!fixture.adventure.variables.ParagraphDirty);
        QVERIFY(!fixture.adventure.variables.AdventureModified);
        QVERIFY(!fixture.control<QAction>("menuEditUndo").isEnabled());
        QVERIFY(fixture.window->close()); // without a question
    }

    void authorStaysWhereHeWas_data()
    {
        using Answer = Prompts::Answer;
        QTest::addColumn<Command>("command");
        const auto row = [](const char *name, const Command &command) {
            QTest::newRow(name) << command;
        };
        const auto item = [&row](const char *name) {
            row(name, [name](WindowFixture &f) { f.trigger(name); });
        };
        for (const char *name : {"menuAvSave", "menuComSwap", "menuComMasterMix", "menuConvRTF",
                                 "menuConv1toHTML", "menuConvNtoHTML"})
            item(name);
        row("deactivation", deactivate);
        row("count", [](WindowFixture &f) {
            f.prompts.expect(QStringLiteral("Paragraphes rédigés : 1"), QStringLiteral("Compte"));
            f.trigger("menuComCount");
        });
        row("first free", [](WindowFixture &f) {
            f.prompts.expect(QStringLiteral("Paragraphe libre : 13"), QStringLiteral("Voilà"));
            f.trigger("menuNavFirstFree");
        });
        row("same number", [](WindowFixture &f) { f.enter(f.field("txtPargNum"), "12"); });
        row("reminder cancelled", [](WindowFixture &f) {
            expectQuestion(f, Answer::Cancel);
            QVERIFY(!f.window->close());
        });
        row("new cancelled", [](WindowFixture &f) {
            expectQuestion(f, Answer::Yes);
            f.prompts.expectFileDialog(QStringLiteral("Nouvelle Aventure"), {});
            f.trigger("menuAvNew");
        });
        row("open failed", [](WindowFixture &f) {
            expectQuestion(f, Answer::Yes);
            f.prompts.expectFileDialog(QStringLiteral("Ouvrir une Aventure"),
                                       f.adventure.path(QStringLiteral("absent.usm")));
            f.prompts.expect(QStringLiteral("Erreur de lecture de fichier."),
                             QStringLiteral("BUG"));
            f.trigger("menuAvOpen");
        });
    }
    void authorStaysWhereHeWas()
    {
        QFETCH(const Command, command);
        WindowFixture fixture(oneText());
        RtfBox &box = fixture.box();
        box.textCursor().insertText(QStringLiteral("au 7\n").repeated(80));
        box.select(400, 3);
        const QString text = box.text();
        const int scrolled = box.verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        fixture.inDialog([&] { command(fixture); }, [](QDialog &) {});
        QVERIFY(!fixture.adventure.variables.ParagraphDirty);
        QCOMPARE(box.text(), text);
        QCOMPARE(box.selStart(), 400);
        QCOMPARE(box.selLength(), 3);
        QCOMPARE(box.verticalScrollBar()->value(), scrolled);
        QVERIFY(box.document()->isUndoAvailable());
    }

    void fixedMarkIsKeptWithoutModifying()
    {
        const WindowFixture fixture(oneText());
        auto &fixed = fixture.control<QAbstractButton>("btnUnmixable");
        fixture.click("btnUnmixable");
        QCOMPARE(fixture.adventure.variables.Unmixable.at(12), quint8(1));
        QVERIFY(!fixture.adventure.variables.AdventureModified);
        QCOMPARE(fixture.control<QLabel>("lblSaved").text(), QStringLiteral("modifié"));
        fixture.click("btnNext");
        QVERIFY(!fixed.isChecked());
        fixture.click("btnPrev");
        QVERIFY(fixed.isChecked());
        fixture.click("btnSave");
        QCOMPARE(fixture.control<QLabel>("lblSaved").text(), QStringLiteral("enregistré"));
        const AdventureBuilder marked({QStringLiteral("12!: Une porte. Allez au 3.")});
        QCOMPARE(fixture.adventure.content(QStringLiteral("Le Loup.usm")),
                 AdventureBuilder(marked).current(12).bytes());
        fixture.click("btnUnmixable");
        QCOMPARE(fixture.adventure.variables.Unmixable.at(12), quint8(0));
    }

    void commandLineThatIsNoAdventureLeavesTheWelcome()
    {
        WindowFixture fixture;
        fixture.prompts.expect(QStringLiteral("Erreur de lecture de fichier."),
                               QStringLiteral("BUG"));
        fixture.window->openCommandLine(fixture.adventure.path(QStringLiteral("absent.usm")));
        QCOMPARE(fixture.window->windowTitle(), QStringLiteral("Usmira - Aucun Fichier Ouvert"));
        QVERIFY(fixture.box().isReadOnly());
    }

    void copyLeavesTheOpenAdventureAsItIs()
    {
        WindowFixture fixture(oneText());
        fixture.type(" Du neuf.");
        const QString title = QStringLiteral("Enregistrer une Copie Sous");
        fixture.prompts.expectFileDialog(title,
                                         fixture.adventure.path(QStringLiteral("copie.usm")));
        fixture.trigger("menuAvSaveCopy");
        QVERIFY(fixture.adventure.content(QStringLiteral("copie.usm")).contains("Du neuf."));
        QVERIFY(!fixture.adventure.content(QStringLiteral("Le Loup.usm")).contains("Du neuf."));
        QVERIFY(fixture.adventure.variables.AdventureModified);
        QCOMPARE(fixture.adventure.variables.AdventureFileName, QStringLiteral("Le Loup.usm"));
        fixture.prompts.expectFileDialog(title, fixture.adventure.variables.AdventurePath);
        fixture.prompts.expect(QStringLiteral("Erreur pendant l'écriture du fichier."),
                               QStringLiteral("BUG"));
        fixture.trigger("menuAvSaveCopy");
        QVERIFY(!fixture.adventure.content(QStringLiteral("Le Loup.usm")).contains("Du neuf."));
    }

    void droppedAdventureIsOpenedAndDroppedTextIsText()
    {
        const WindowFixture fixture(oneText());
        const auto drop = [&fixture](const QMimeData &data) {
            QWidget *page = fixture.box().viewport();
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(page, &enter);
            QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(page, &event);
            QCoreApplication::processEvents();
        };
        QMimeData text;
        text.setText(QStringLiteral("Loin. "));
        drop(text);
        QVERIFY(fixture.box().text().contains(QStringLiteral("Loin. ")));
        fixture.click("btnSave");
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(fixture.adventure.file(
            QStringLiteral("autre.usm"), AdventureBuilder({QStringLiteral("1: Un.")}).bytes()))});
        drop(file);
        QCOMPARE(fixture.adventure.variables.AdventureFileName, QStringLiteral("autre.usm"));
        QCOMPARE(fixture.box().text(), QStringLiteral("Un."));
    }

    void sampleIsCopiedOnceAndOpened()
    {
        const WindowFixture fixture;
        const QString home = fixture.adventure.path(QStringLiteral("chez moi"));
        for (const char *name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            qputenv(name, home.toLocal8Bit());
        fixture.trigger("menuInfoSample");
        const QString copy = home + QStringLiteral("/Usmira/La Dernière Tournée.usm");
        QCOMPARE(fixture.adventure.variables.AdventurePath, copy);
        fixture.type("Du neuf.");
        fixture.click("btnSave");
        fixture.trigger("menuInfoSample");
        QVERIFY(fixture.box().text().contains(QStringLiteral("Du neuf.")));
    }

    void maximizedWindowComesBackMaximized()
    {
        WindowFixture fixture;
        for (const bool maximized : {true, false}) {
            fixture.window->setWindowState(maximized ? Qt::WindowMaximized : Qt::WindowNoState);
            QVERIFY(fixture.window->close());
            fixture.start();
            QCOMPARE(fixture.window->isMaximized(), maximized);
        }
    }

    void longWorkShowsItsCaptionAndGivesTheFocusBack()
    {
        const WindowFixture fixture(oneText());
        fixture.box().setFocus();
        fixture.type("x");
        WorkReport &work = fixture.window->work();
        work.begin(QStringLiteral("Graphing..."), WorkReport::Stopping::Never);
        QVERIFY(!fixture.box().isVisible());
        QCOMPARE(fixture.control<QLabel>("labBehind").text(), QStringLiteral("Graphing..."));
        QVERIFY(fixture.control<QLabel>("labBehind").isVisible());
        deactivate(fixture);
        QVERIFY(fixture.adventure.variables.ParagraphDirty);
        work.end();
        QVERIFY(fixture.box().isVisible());
        QVERIFY(fixture.box().hasFocus());
    }

    void longWorkPaintsButLetsNothingIn()
    {
        const WindowFixture fixture(oneText());
        const auto &bar = fixture.control<QProgressBar>("barWork");
        CountingWindow other;
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        bool letIn = false;
        QTimer::singleShot(0, &other, [&letIn] { letIn = true; });
        QElapsedTimer time;
        time.start();
        other.paints = 0;
        WorkReport &work = fixture.window->work();
        work.begin(QStringLiteral("Saving..."), WorkReport::Stopping::Never);
        while (!bar.isVisible() && !time.hasExpired(20000))
            work.progress(30, 40);
        QVERIFY(bar.isVisible());
        QVERIFY(time.hasExpired(500));
        QVERIFY2(other.paints >= 2 && other.paints <= 2 + time.elapsed() / 100,
                 qPrintable(QString::number(other.paints)));
        QCOMPARE(bar.value(), 30);
        QCOMPARE(bar.maximum(), 40);
        QVERIFY(!letIn);
        work.end();
        QVERIFY(!bar.isVisible());
    }

    void escapeAndNothingElseReachesWorkThatMayBeStopped()
    {
        const WindowFixture fixture(oneText());
        WorkReport &work = fixture.window->work();
        work.begin(QStringLiteral("Conversion..."), WorkReport::Stopping::OnEscape);
        QTimer::singleShot(0, fixture.window.get(), [&fixture] {
            QTest::keyClick(fixture.window.get(), Qt::Key_N, Qt::ControlModifier);
            QVERIFY(!fixture.window->close());
            QTest::keyClick(fixture.window.get(), Qt::Key_Escape);
        });
        QElapsedTimer time;
        time.start();
        while (!work.progress(1, 2))
            QVERIFY(!time.hasExpired(20000));
        work.end();
    }

    void statusLineFollowsTheText()
    {
        const WindowFixture fixture(oneText());
        const auto shown = [&fixture] {
            return fixture.control<QLabel>("lblCounts").text() + QStringLiteral(" / ") +
                   fixture.control<QLabel>("lblSaved").text();
        };
        QCOMPARE(shown(), QStringLiteral("paragraphe 12 · 5 mots · 1 renvoi / enregistré"));
        fixture.type(" - Ou au 4 !");
        QCOMPARE(shown(), QStringLiteral("paragraphe 12 · 8 mots · 2 renvois / modifié"));
        fixture.click("btnNext");
        QCOMPARE(shown(), QStringLiteral("paragraphe 13 · 0 mot · 0 renvoi / modifié"));
        fixture.click("btnSave");
        QCOMPARE(shown(), QStringLiteral("paragraphe 13 · 0 mot · 0 renvoi / enregistré"));
    }

    void writeSaveReopen()
    {
        WindowFixture fixture;
        const QString path = fixture.adventure.path(QStringLiteral("La Tour d'Ivoire.usm"));
        fixture.prompts.expectFileDialog(QStringLiteral("Nouvelle Aventure"), path);
        QTest::keyClick(fixture.window.get(), Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(fixture.window->windowTitle(), QStringLiteral("Usmira - La Tour d'Ivoire.usm"));
        fixture.enter(fixture.field("txtPargNum"), "12");
        QTest::keyClick(&fixture.box(), Qt::Key_B, Qt::ControlModifier);
        QTest::keyClicks(&fixture.box(), QStringLiteral("Une porte. Allez au 13."));
        fixture.click("btnNext");
        QCOMPARE(fixture.entries("incomingList"), QStringLiteral("   12"));
        fixture.type("Fin.");
        QTest::keyClick(fixture.window.get(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(fixture.window->close());

        fixture.adventure.variables = {};
        fixture.adventure.variables.WorkingFolder =
            fixture.adventure.path(QStringLiteral("Dossier Usmira/"));
        fixture.start();
        fixture.prompts.expectFileDialog(QStringLiteral("Ouvrir une Aventure"), path);
        QTest::keyClick(fixture.window.get(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(fixture.current(), 13);
        QCOMPARE(fixture.box().text(), QStringLiteral("Fin."));
        fixture.click("btnPrevTyped");
        QCOMPARE(fixture.box().text(), QStringLiteral("Une porte. Allez au 13."));
        fixture.box().selectAll();
        QCOMPARE(fixture.box().selBold(), std::optional(true));
    }
};

QTEST_MAIN(tst_lifecycle)
#include "tst_lifecycle.moc"
