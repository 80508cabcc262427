#include "WindowFixture.h"

#include <QCloseEvent>
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
    return AdventureBuilder({"12: Une porte. Allez au 3."}).current(12);
}

void expectQuestion(WindowFixture &fixture, Prompts::Answer answer)
{
    fixture.prompts.expect(
        "ATTENTION : Vous n'avez pas enregistré l'aventure Le Loup.usm. Voulez-vous "
        "le faire? Sinon, vous perdrez tous les changements!",
        "Rappel amical", Prompts::Buttons::YesNoCancel, answer);
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
    void closingWhileTheQuestionStandsIsNoAnswer()
    {
        WindowFixture fixture(oneText());
        fixture.type("Non. ");
        expectQuestion(fixture, Prompts::Answer::Cancel);
        fixture.prompts.meanwhile = [&] {
            QCloseEvent again;
            QCoreApplication::sendEvent(fixture.window->windowHandle(), &again);
            QVERIFY(!again.isAccepted());
        };
        QVERIFY(!fixture.window->close());
        QVERIFY(fixture.window->isVisible());
    }

    void settingsComeBackAtTheNextStart()
    {
        WindowFixture fixture;
        fixture.adventure.file("Dossier Usmira/Copyright.rtf", rtfOf("Bienvenue"));
        QVERIFY(!fixture.control<QWidget>("frameTabPanel").isVisible());
        fixture.click("btnMore");
        for (const bool maximized : {false, true, false}) {
            fixture.window->setWindowState(maximized ? Qt::WindowMaximized : Qt::WindowNoState);
            if (!maximized)
                fixture.window->resize(640, 480);
            QVERIFY(fixture.window->close());
            fixture.variables.showTabPanel = 0;
            fixture.start();
            QCOMPARE(fixture.window->isMaximized(), maximized);
            QVERIFY(maximized || fixture.window->size() == QSize(640, 480));
            QVERIFY(fixture.control<QWidget>("frameTabPanel").isVisible());
            QVERIFY(fixture.control<QToolButton>("btnMore").isChecked());
            QCOMPARE(fixture.box().text(), "Bienvenue");
        }
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
            const QByteArray file = fixture.adventure.content("Le Loup.usm");
            QCOMPARE(file.contains("Du neuf."), answer == Answer::Yes);
            const QStringList files = fixture.adventure.workingFiles();
            QCOMPARE(files.contains("LL-0012.rtf"), !closes);
            QVERIFY(files.contains("Usmira Settings.xyz"));
        }
    }

    void failedSaveKeepsTheWindowOpen()
    {
        WindowFixture fixture(oneText());
        fixture.type(" Du neuf.");
        fixture.window->SaveCurParg();
        // The temporary save file cannot be written: folders have its name.
        for (const QString &folder : {fixture.variables.WorkingFolder, fixture.adventure.path({})})
            QVERIFY(QDir(folder).mkdir("Usmira Temporary Save File.xyz"));
        expectQuestion(fixture, Prompts::Answer::Yes);
        fixture.prompts.expect("Erreur pendant l'écriture du fichier.", "BUG");
        QVERIFY(!fixture.window->close());
        QVERIFY(fixture.variables.AdventureModified && fixture.box().isVisible());
    }

    void authorStaysWhereHeWas_data()
    {
        using Answer = Prompts::Answer;
        QTest::addColumn<Command>("command");
        const auto row = [](const char *name, const Command &command) {
            QTest::newRow(name) << command;
        };
        for (const char *name : {"menuAvSave", "menuComSwap", "menuComMasterMix", "menuConvRTF",
                                 "menuConv1toHTML", "menuConvNtoHTML"})
            row(name, [name](WindowFixture &f) { f.trigger(name); });
        row("deactivation", deactivate);
        row("count and first free", [](WindowFixture &f) {
            f.prompts.expect("Paragraphes rédigés : 1", "Compte");
            f.trigger("menuComCount");
            f.prompts.expect("Paragraphe libre : 13", "Voilà");
            f.trigger("menuNavFirstFree");
        });
        row("same number", [](WindowFixture &f) { f.enter(f.field("txtPargNum"), "12"); });
        row("reminder cancelled", [](WindowFixture &f) {
            expectQuestion(f, Answer::Cancel);
            QVERIFY(!f.window->close());
        });
        row("new cancelled", [](WindowFixture &f) {
            expectQuestion(f, Answer::Yes);
            f.prompts.expectFileDialog("Nouvelle Aventure", {});
            f.trigger("menuAvNew");
        });
        row("open failed", [](WindowFixture &f) {
            expectQuestion(f, Answer::Yes);
            f.prompts.expectFileDialog("Ouvrir une Aventure", f.adventure.path("absent.usm"));
            f.prompts.expect("Erreur de lecture de fichier.", "BUG");
            f.trigger("menuAvOpen");
        });
    }
    void authorStaysWhereHeWas()
    {
        QFETCH(const Command, command);
        WindowFixture fixture(oneText());
        RtfBox &box = fixture.box();
        box.textCursor().insertText(QString("au 7\n").repeated(80));
        box.select(400, 3);
        const QString text = box.text();
        const int scrolled = box.verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        fixture.inDialog([&] { command(fixture); }, [](QDialog &) {});
        QVERIFY(!fixture.variables.ParagraphDirty);
        QCOMPARE(box.text(), text);
        QVERIFY(box.selStart() == 400 && box.selLength() == 3);
        QCOMPARE(box.verticalScrollBar()->value(), scrolled);
        QVERIFY(box.document()->isUndoAvailable());
    }

    void fixedMarkIsKeptWithoutModifying()
    {
        const WindowFixture fixture(oneText());
        const auto &fixed = fixture.control<QAbstractButton>("btnUnmixable");
        fixture.click("btnUnmixable");
        QVERIFY(!fixture.variables.AdventureModified);
        QCOMPARE(fixture.label("lblSaved"), "modifié");
        fixture.click("btnNext");
        QVERIFY(!fixed.isChecked());
        fixture.click("btnPrev");
        QVERIFY(fixed.isChecked());
        fixture.click("btnSave");
        QCOMPARE(fixture.adventure.content("Le Loup.usm"),
                 AdventureBuilder({"12!: Une porte. Allez au 3."}).current(12).bytes());
        fixture.click("btnUnmixable");
        QCOMPARE(fixture.variables.Unmixable.at(12), quint8(0));
    }

    void commandLineThatIsNoAdventureLeavesTheWelcome()
    {
        WindowFixture fixture;
        fixture.prompts.expect("Erreur de lecture de fichier.", "BUG");
        fixture.window->openCommandLine(fixture.adventure.path("absent.usm"));
        QCOMPARE(fixture.window->windowTitle(), "Usmira - Aucun Fichier Ouvert");
        QVERIFY(fixture.box().isReadOnly());
    }

    void copyLeavesTheOpenAdventureAsItIs()
    {
        WindowFixture fixture(oneText());
        fixture.type(" Du neuf.");
        const QString title = "Enregistrer une Copie Sous";
        fixture.prompts.expectFileDialog(title, fixture.adventure.path("copie.usm"),
                                         "Le Loup (copie)");
        fixture.trigger("menuAvSaveCopy");
        QVERIFY(fixture.adventure.content("copie.usm").contains("Du neuf."));
        QVERIFY(!fixture.adventure.content("Le Loup.usm").contains("Du neuf."));
        QVERIFY(fixture.variables.AdventureModified);
        QCOMPARE(fixture.variables.AdventureFileName, "Le Loup.usm");
        fixture.prompts.expectFileDialog(title, fixture.variables.AdventurePath, "Le Loup (copie)");
        fixture.prompts.expect("Erreur pendant l'écriture du fichier.", "BUG");
        fixture.trigger("menuAvSaveCopy"); // refused
        QVERIFY(!fixture.adventure.content("Le Loup.usm").contains("Du neuf."));
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
        text.setText("Loin. ");
        drop(text);
        QVERIFY(fixture.box().text().contains("Loin. "));
        fixture.click("btnSave");
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(
            fixture.adventure.file("autre.usm", AdventureBuilder({"1: Un."}).bytes()))});
        drop(file);
        QCOMPARE(fixture.box().text(), "Un.");
    }

    void sampleIsCopiedOnceAndOpened()
    {
#ifdef Q_OS_WIN
        QSKIP("Windows does not ask the environment where the documents are");
#endif
        const WindowFixture fixture;
        const QString home = fixture.adventure.path("chez moi");
        for (const char *name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            qputenv(name, home.toLocal8Bit());
        fixture.trigger("menuInfoSample");
        QCOMPARE(fixture.variables.AdventurePath, home + "/Usmira/La Dernière Tournée.usm");
        fixture.type("Du neuf.");
        fixture.click("btnSave");
        fixture.trigger("menuInfoSample");
        QVERIFY(fixture.box().text().contains("Du neuf."));
    }

    // Nor does it lose what was typed, or the focus.
    void longWorkPaintsButLetsNothingIn()
    {
        const WindowFixture fixture(oneText());
        const auto &bar = fixture.control<QProgressBar>("barWork");
        CountingWindow other;
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        QVERIFY(fixture.editorHasFocus());
        fixture.type("x");
        bool letIn = false;
        QTimer::singleShot(0, &other, [&letIn] { letIn = true; });
        QElapsedTimer time;
        time.start();
        other.paints = 0;
        WorkReport &work = fixture.window->work();
        work.begin("Saving...", WorkReport::Stopping::Never);
        QVERIFY(!fixture.box().isVisible() && fixture.control<QLabel>("labBehind").isVisible());
        QCOMPARE(fixture.label("labBehind"), "Saving...");
        while (!bar.isVisible() && !time.hasExpired(20000))
            work.progress(30, 40);
        QVERIFY(bar.isVisible() && time.hasExpired(500));
        QVERIFY2(other.paints >= 2 && other.paints <= 2 + time.elapsed() / 100,
                 qPrintable(QString::number(other.paints)));
        QVERIFY(bar.value() == 30 && bar.maximum() == 40 && !letIn);
        deactivate(fixture);
        QVERIFY(fixture.variables.ParagraphDirty); // saved is only when the work is done
        work.end();
        QVERIFY(!bar.isVisible() && fixture.box().isVisible());
        QVERIFY(fixture.editorHasFocus());
    }

    void escapeAndNothingElseReachesWorkThatMayBeStopped()
    {
        const WindowFixture fixture(oneText());
        WorkReport &work = fixture.window->work();
        work.begin("Conversion...", WorkReport::Stopping::OnEscape);
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
            return fixture.label("lblCounts") + " / " + fixture.label("lblSaved");
        };
        fixture.click("btnNext");
        fixture.click("btnPrev");
        QCOMPARE(shown(), "paragraphe 12 · 5 mots · 1 renvoi / enregistré");
        QVERIFY(!fixture.control<QAction>("menuEditUndo").isEnabled());
        fixture.type(" - Ou au 4 !");
        QTRY_COMPARE(shown(), "paragraphe 12 · 8 mots · 2 renvois / modifié");
        fixture.click("btnNext");
        fixture.click("btnSave");
        QCOMPARE(shown(), "paragraphe 13 · 0 mot · 0 renvoi / enregistré");
        QVERIFY(fixture.window->close()); // without a question
    }

    void writeSaveReopen()
    {
        WindowFixture fixture;
        const QString path = fixture.adventure.path("La Tour d'Ivoire.usm");
        fixture.prompts.expectFileDialog("Nouvelle Aventure", path);
        QTest::keyClick(fixture.window.get(), Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(fixture.window->windowTitle(), "Usmira - La Tour d'Ivoire.usm");
        fixture.enter(fixture.field("txtPargNum"), "12");
        QTest::keyClick(&fixture.box(), Qt::Key_B, Qt::ControlModifier);
        QTest::keyClicks(&fixture.box(), "Une porte. Allez au 13.");
        fixture.click("btnNext");
        QCOMPARE(fixture.entries("incomingList"), "   12");
        fixture.type("Fin.");
        QTest::keyClick(fixture.window.get(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(fixture.window->close());

        fixture.adventure.variables = {};
        fixture.variables.WorkingFolder = fixture.adventure.path("Dossier Usmira/");
        fixture.start();
        fixture.prompts.expectFileDialog("Ouvrir une Aventure", path);
        QTest::keyClick(fixture.window.get(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(fixture.current(), 13);
        QCOMPARE(fixture.box().text(), "Fin.");
        fixture.click("btnPrevTyped");
        QCOMPARE(fixture.box().text(), "Une porte. Allez au 13.");
        fixture.box().selectAll();
        QCOMPARE(fixture.box().selBold(), std::optional(true));
    }
};

QTEST_MAIN(tst_lifecycle)
#include "tst_lifecycle.moc"
