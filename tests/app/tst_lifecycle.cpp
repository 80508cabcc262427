#include "WindowFixture.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

namespace
{
QString question(const QString &name)
{
    return QStringLiteral("ATTENTION : Vous n'avez pas enregistré l'aventure ") + name +
           QStringLiteral(". Voulez-vous le faire? Sinon, vous perdrez tous les changements!");
}

AdventureBuilder oneText()
{
    return AdventureBuilder({QStringLiteral("12: Une porte. Allez au 3.")}).current(12);
}

void deactivate(const WindowFixture &fixture)
{
    QEvent event(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(fixture.window.get(), &event);
}
} // namespace

// Start-up, settings, saving on the way out, and a story from end to end.
class tst_lifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstStart();
    void settingsComeBackAtTheNextStart();
    void closingAsksAboutUnsavedChanges_data();
    void closingAsksAboutUnsavedChanges();
    void failedSaveKeepsTheWindowOpen();
    void closingWithNothingUnsavedAsksNothing();
    void deactivationSavesWithoutMovingTheAuthor();
    void showingAParagraphChangesNothing();
    void fixedMarkIsKeptWithoutModifying();
    void commandLineThatIsNoAdventureLeavesTheWelcome();
    void longWorkShowsItsCaptionAndGivesTheFocusBack();
    void statusLineFollowsTheText();
    void menusFollowTheAdventure();
    void countLeavesParagraphZeroOut();
    void writeSaveReopen();
};

void tst_lifecycle::firstStart()
{
    WindowFixture fixture;
    QCOMPARE(fixture.window->windowTitle(), QStringLiteral("Usmira - Aucun Fichier Ouvert"));
    QVERIFY(!fixture.control<QWidget>("frameTabPanel").isVisible());
    QCOMPARE(fixture.box().text(), QString());
    QVERIFY(fixture.window->close());
    const QByteArray settings =
        fixture.adventure.content(QStringLiteral("Dossier Usmira/Usmira Settings.xyz"));
    QVERIFY(settings.startsWith("#FALSE#,#FALSE#,#FALSE#,0\r\n#FALSE#,#FALSE#,#FALSE#,0\r\n"
                                "#FALSE#,0\r\n"));
    QVERIFY(settings.endsWith("\"Times New Roman\"\r\n12\r\n"));
}

void tst_lifecycle::settingsComeBackAtTheNextStart()
{
    WindowFixture fixture;
    fixture.adventure.file(QStringLiteral("Dossier Usmira/Copyright.rtf"),
                           rtfOf(QStringLiteral("Bienvenue")));
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

void tst_lifecycle::closingAsksAboutUnsavedChanges_data()
{
    QTest::addColumn<Prompts::Answer>("answer");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<bool>("saved");
    QTest::addColumn<bool>("workingFile");
    QTest::newRow("yes") << Prompts::Answer::Yes << true << true << false;
    QTest::newRow("no") << Prompts::Answer::No << true << false << false;
    QTest::newRow("cancel") << Prompts::Answer::Cancel << false << false << true;
}

void tst_lifecycle::closingAsksAboutUnsavedChanges()
{
    QFETCH(const Prompts::Answer, answer);
    QFETCH(const bool, closes);
    QFETCH(const bool, saved);
    QFETCH(const bool, workingFile);
    WindowFixture fixture(oneText());
    fixture.type(QStringLiteral(" Du neuf."));
    fixture.prompts.expect(question(QStringLiteral("Le Loup.usm")), QStringLiteral("Rappel amical"),
                           Prompts::Buttons::YesNoCancel, answer);
    QCOMPARE(fixture.window->close(), closes);
    QCOMPARE(fixture.window->isVisible(), !closes);
    QCOMPARE(fixture.adventure.content(QStringLiteral("Le Loup.usm")).contains("Du neuf."), saved);
    const QStringList files = fixture.adventure.workingFiles();
    QCOMPARE(files.contains(QStringLiteral("LL-0012.rtf")), workingFile);
    QVERIFY(files.contains(QStringLiteral("Usmira Settings.xyz")));
}

void tst_lifecycle::failedSaveKeepsTheWindowOpen()
{
    WindowFixture fixture(oneText());
    fixture.type(QStringLiteral(" Du neuf."));
    fixture.window->SaveCurParg();
    // The temporary save file cannot be written: a folder has its name.
    QVERIFY(QDir(fixture.adventure.variables.WorkingFolder)
                .mkdir(QStringLiteral("Usmira Temporary Save File.xyz")));
    fixture.prompts.expect(question(QStringLiteral("Le Loup.usm")), QStringLiteral("Rappel amical"),
                           Prompts::Buttons::YesNoCancel, Prompts::Answer::Yes);
    fixture.prompts.expect(QStringLiteral("Erreur pendant l'écriture du fichier."),
                           QStringLiteral("BUG"));
    QVERIFY(!fixture.window->close());
    QVERIFY(fixture.adventure.variables.AdventureModified);
    QVERIFY(fixture.box().isVisible());
}

void tst_lifecycle::closingWithNothingUnsavedAsksNothing()
{
    const WindowFixture fixture(oneText());
    fixture.click("btnNext");
    QVERIFY(fixture.window->close());
}

void tst_lifecycle::deactivationSavesWithoutMovingTheAuthor()
{
    const WindowFixture fixture(oneText());
    RtfBox &box = fixture.box();
    for (int i = 0; i < 80; ++i) {
        fixture.type(QStringLiteral("au 7"));
        QTest::keyClick(&box, Qt::Key_Return);
    }
    box.select(400, 3);
    const int scrolled = box.verticalScrollBar()->value();
    QVERIFY(scrolled > 0);
    deactivate(fixture);
    QVERIFY(!fixture.adventure.variables.ParagraphDirty);
    QCOMPARE(fixture.adventure.variables.Extracted.at(12), quint8(1));
    QCOMPARE(box.selStart(), 400);
    QCOMPARE(box.selLength(), 3);
    QCOMPARE(box.verticalScrollBar()->value(), scrolled);
    QVERIFY(box.document()->isUndoAvailable());
    QVERIFY(!fixture.adventure.variables.ParagraphDirty);
}

void tst_lifecycle::showingAParagraphChangesNothing()
{
    const WindowFixture fixture(oneText());
    fixture.click("btnNext");
    fixture.click("btnPrev");
    QVERIFY(!fixture.adventure.variables.ParagraphDirty);
    QVERIFY(!fixture.adventure.variables.AdventureModified);
    QVERIFY(!fixture.control<QAction>("menuEditUndo").isEnabled());
}

void tst_lifecycle::fixedMarkIsKeptWithoutModifying()
{
    const WindowFixture fixture(oneText());
    auto &fixed = fixture.control<QAbstractButton>("btnUnmixable");
    fixture.click("btnUnmixable");
    QCOMPARE(fixture.adventure.variables.Unmixable.at(12), quint8(1));
    QVERIFY(!fixture.adventure.variables.AdventureModified);
    fixture.click("btnNext");
    QVERIFY(!fixed.isChecked());
    fixture.click("btnPrev");
    QVERIFY(fixed.isChecked());
    fixture.click("btnUnmixable");
    QCOMPARE(fixture.adventure.variables.Unmixable.at(12), quint8(0));
}

void tst_lifecycle::commandLineThatIsNoAdventureLeavesTheWelcome()
{
    WindowFixture fixture;
    fixture.prompts.expect(QStringLiteral("Erreur de lecture de fichier."), QStringLiteral("BUG"));
    fixture.window->openCommandLine(fixture.adventure.path(QStringLiteral("absent.usm")));
    QCOMPARE(fixture.window->windowTitle(), QStringLiteral("Usmira - Aucun Fichier Ouvert"));
    QVERIFY(fixture.box().isReadOnly());
}

void tst_lifecycle::longWorkShowsItsCaptionAndGivesTheFocusBack()
{
    const WindowFixture fixture(oneText());
    fixture.box().setFocus();
    fixture.type(QStringLiteral("x"));
    fixture.window->longWorkBegins(QStringLiteral("Graphing..."));
    QVERIFY(!fixture.box().isVisible());
    QCOMPARE(fixture.control<QLabel>("labBehind").text(), QStringLiteral("Graphing..."));
    QVERIFY(fixture.control<QLabel>("labBehind").isVisible());
    deactivate(fixture);
    QVERIFY(fixture.adventure.variables.ParagraphDirty);
    fixture.window->longWorkEnds();
    QVERIFY(fixture.box().isVisible());
    QVERIFY(fixture.box().hasFocus());
}

void tst_lifecycle::statusLineFollowsTheText()
{
    const WindowFixture fixture(oneText());
    const auto &counts = fixture.control<QLabel>("lblCounts");
    const auto &saved = fixture.control<QLabel>("lblSaved");
    QCOMPARE(counts.text(), QStringLiteral("paragraphe 12 · 5 mots · 1 renvoi"));
    QCOMPARE(saved.text(), QStringLiteral("enregistré"));
    fixture.type(QStringLiteral(" - Ou au 4 !"));
    QCOMPARE(counts.text(), QStringLiteral("paragraphe 12 · 8 mots · 2 renvois"));
    QCOMPARE(saved.text(), QStringLiteral("modifié"));
    fixture.click("btnNext");
    QCOMPARE(counts.text(), QStringLiteral("paragraphe 13 · 0 mot · 0 renvoi"));
    QCOMPARE(saved.text(), QStringLiteral("modifié"));
    fixture.click("btnSave");
    QCOMPARE(saved.text(), QStringLiteral("enregistré"));
}

void tst_lifecycle::menusFollowTheAdventure()
{
    WindowFixture fixture;
    for (const char *item : {"menuAvSave", "menuNavNext", "menuNavFirstFree", "menuComCount"})
        QVERIFY(!fixture.control<QAction>(item).isEnabled());
    fixture.open(oneText().bytes());
    // Their keys work before any menu has been opened.
    for (const char *item : {"menuAvSave", "menuNavNext", "menuNavFirstFree", "menuComCount"})
        QVERIFY(fixture.control<QAction>(item).isEnabled());
}

void tst_lifecycle::countLeavesParagraphZeroOut()
{
    WindowFixture fixture(AdventureBuilder(
        {QStringLiteral("0: Notes."), QStringLiteral("1: Un."), QStringLiteral("2: Deux.")}));
    fixture.window->LoadParg(3);
    fixture.type(QStringLiteral("Trois."));
    fixture.prompts.expect(QStringLiteral("Paragraphes rédigés : 3"), QStringLiteral("Compte"));
    QTest::keyClick(fixture.window.get(), Qt::Key_K, Qt::ControlModifier);
    QVERIFY(fixture.box().hasFocus());
}

void tst_lifecycle::writeSaveReopen()
{
    WindowFixture fixture;
    const QString path = fixture.adventure.path(QStringLiteral("La Tour d'Ivoire.usm"));
    fixture.prompts.expectFileDialog(QStringLiteral("Nouvelle Aventure"), path);
    QTest::keyClick(fixture.window.get(), Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(fixture.window->windowTitle(), QStringLiteral("Usmira - La Tour d'Ivoire.usm"));
    auto &number = fixture.control<QLineEdit>("txtPargNum");
    number.setFocus();
    QTest::keyClicks(&number, QStringLiteral("12"));
    QTest::keyClick(&number, Qt::Key_Return);
    QTest::keyClick(&fixture.box(), Qt::Key_B, Qt::ControlModifier);
    QTest::keyClicks(&fixture.box(), QStringLiteral("Une porte. Allez au 13."));
    fixture.click("btnNext");
    QCOMPARE(fixture.entries("incomingList"), QStringList{QStringLiteral("   12")});
    fixture.type(QStringLiteral("Fin."));
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

QTEST_MAIN(tst_lifecycle)
#include "tst_lifecycle.moc"
