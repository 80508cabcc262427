#include "app/formUsmira.h"

#include "app/CloseGuard.h"
#include "app/DropToOpen.h"
#include "app/EditMenu.h"
#include "app/NavigationMenu.h"
#include "app/RecentMenu.h"
#include "app/WindowPlacement.h"
#include "editor/BoxKeys.h"
#include "editor/FirstWords.h"
#include "editor/language/TypographyAids.h"
#include "editor/options/ZoomKeys.h"
#include "editor/options/optionsDlog.h"
#include "editor/references/ReferenceAids.h"
#include "platform/Failures.h"
#include "platform/Guarded.h"
#include "platform/SafeFile.h"
#include "platform/Translations.h"
#include "store/AdventureEvents.h"
#include "store/CommandHistory.h"
#include "store/LenientNumbers.h"
#include "store/SampleAdventure.h"
#include "store/SessionRecovery.h"
#include "store/WorkingFiles.h"
#include "store/WorkingFolder.h"
#include "ui_formUsmira.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>

namespace
{
using Kind = CommandRunner::Kind;

constexpr QSize DesignSize(1080, 720);

// What stands on the form takes parts of it, so that it must be there first.
std::unique_ptr<Ui::formUsmira> setUp(formUsmira &window)
{
    auto ui = std::make_unique<Ui::formUsmira>();
    ui->setupUi(&window);
    return ui;
}

ParagraphPage::Controls pageControls(const Ui::formUsmira &ui)
{
    return {*ui.rtfBox,       *ui.formattingBar, *ui.frameTabPanel, *ui.txtPargNum,
            *ui.btnUnmixable, *ui.theList,       *ui.btnVider,      *ui.incomingList};
}
} // namespace

formUsmira::formUsmira(Variables &variables, Prompts &prompts)
    : m_variables(variables), m_prompts(prompts), m_ui(setUp(*this)),
      m_work(*m_ui->labBehind, *m_ui->barWork, *m_ui->rtfBox, *m_ui->statusBar),
      m_page(variables, prompts, pageControls(*m_ui)), m_typed(variables, *m_ui->rtfBox),
      m_status(variables, *m_ui->rtfBox, *m_ui->statusBar), m_menuStates(variables),
      m_runner(variables, prompts, m_page, m_menuStates),
      m_adventure(variables, prompts, m_page, m_work),
      m_adventures(variables, prompts, m_work, m_adventure, *this),
      m_navigation(variables, prompts, m_page),
      m_searchReplace(variables, prompts, m_work, {m_page, m_navigation, m_runner}, this),
      m_functions(variables, prompts, m_work, *this), m_history(variables, prompts, m_work, *this),
      m_reading(variables, prompts, m_comfort, {m_page, m_navigation, m_runner}, *this),
      m_views(variables, prompts, {m_navigation, m_runner, m_reading}, *this),
      m_checkMenu(variables, prompts, m_work, {m_page, m_navigation, m_runner}, *this),
      m_spelling(variables, prompts, m_work, m_comfort, {m_page, m_navigation, m_runner}, *this),
      m_typography(variables, {prompts, m_work, m_comfort}, {m_page, m_navigation, m_runner},
                   *this),
      m_conversions(variables, prompts, m_page, m_work, *this), m_info(variables, prompts, m_page)
{
    resize(DesignSize);
    connectAdventure();
    connectNavigation();
    connectLists();
    connectBox();
    connectSearchReplace();
    connectMenus();
    connectComfort();
}

// A window still shown would be hidden after its members are gone, and its controls would tell it
// that they lose the focus.
formUsmira::~formUsmira()
{
    m_closed = true;
    hide();
}

void formUsmira::connectAdventure()
{
    m_runner.add(*m_ui->menuAvNew, *m_ui->btnNew, Kind::Anytime, [this] { m_adventure.New(); });
    m_runner.add(*m_ui->menuAvOpen, *m_ui->btnOpen, Kind::Anytime, [this] { m_adventure.Open(); });
    m_runner.add(*m_ui->menuAvSave, *m_ui->btnSave, Kind::Adventure,
                 [this] { m_adventure.Save(); });
    m_adventures.connectItems(
        {*m_ui->menuAvSaveCopy, *m_ui->menuAvCopies, *m_ui->menuAvExport, *m_ui->menuAvImport},
        m_runner);
    connect(new DropToOpen(*this), &DropToOpen::dropped, this, [this](const QString &path) {
        m_runner.run(Kind::Anytime, [this, path] { m_adventure.OpenInstead(path); });
    });
    connect(m_ui->menuAvQuit, &QAction::triggered, this, &QWidget::close);
    m_menuStates.watch(*m_ui->menuAv);
    connect(m_variables.Events.get(), &AdventureEvents::adventureReplaced, this,
            &formUsmira::showTitle);
}

void formUsmira::connectNavigation()
{
    connectNavigationMenu({{*m_ui->menuNavFirst, *m_ui->btnFirst},
                           {*m_ui->menuNavLast, *m_ui->btnLast},
                           {*m_ui->menuNavNext, *m_ui->btnNext},
                           {*m_ui->menuNavPrev, *m_ui->btnPrev},
                           {*m_ui->menuNavNextTyped, *m_ui->btnNextTyped},
                           {*m_ui->menuNavPrevTyped, *m_ui->btnPrevTyped},
                           {*m_ui->menuNavNextEmpty, *m_ui->btnNextEmpty},
                           {*m_ui->menuNavPrevEmpty, *m_ui->btnPrevEmpty},
                           *m_ui->menuNavFirstFree,
                           *m_ui->menuNavFollow,
                           *m_ui->menuNavBack,
                           *m_ui->menuNavForward},
                          m_navigation, m_runner);
    m_menuStates.watch(*m_ui->menuNav);
    NumberBox::connectBeeps(*this, m_prompts);
    connectGuarded(m_ui->txtPargNum, &QLineEdit::returnPressed, this, m_prompts,
                   [this] { txtPargNum_Enter(); });
}

void formUsmira::connectLists()
{
    connectGuarded(m_ui->theList, &NumberList::chosen, this, m_prompts,
                   [this] { theList_Click(); });
    connectGuarded(m_ui->incomingList, &NumberList::chosen, this, m_prompts,
                   [this] { incomingList_Click(); });
    for (NumberList *list : {m_ui->theList, m_ui->incomingList})
        list->setFirstWords([this](int n) { return firstWords(m_variables, n); });
}

void formUsmira::connectBox()
{
    auto *keys = new BoxKeys(m_variables, *m_ui->rtfBox, *m_ui->formattingBar);
    connect(keys, &BoxKeys::ctrlClicked, this, [this] {
        m_runner.run(Kind::Adventure, [this] { m_navigation.followNumberAtCaret(); });
    });
    connect(keys, &BoxKeys::failed, this, &formUsmira::rescue);
    connect(keys, &BoxKeys::masterMixWanted, m_ui->menuComMasterMix, &QAction::trigger);
    connect(keys, &BoxKeys::swapWanted, m_ui->menuComSwap, &QAction::trigger);
    connect(m_ui->rtfBox, &RtfBox::failed, this,
            [this](const QString &failure) { m_runner.rescue(failure); });
    connect(m_ui->frameTabPanel, &TabPanel::tabRefused, this, [this] { m_prompts.beep(); });
    connect(&m_page, &ParagraphPage::changed, &m_status, &StatusLine::refresh);
    connect(&m_page, &ParagraphPage::changed, &m_typed, &TypedSnapshot::follow);
    connect(&m_typed, &TypedSnapshot::failed, this, [this](const UsmiraError &error) {
        m_work.announce(failureLine(tr("Rien de ce qui est tapé n'est à l'abri."), error));
    });
    connectReferences();
}

void formUsmira::connectReferences()
{
    auto *aids = new ReferenceAids(m_variables, m_prompts, *m_ui->rtfBox);
    connect(&m_page, &ParagraphPage::changed, aids, &ReferenceAids::follow);
    connect(&m_comfort, &ComfortKeeper::changed, aids,
            [this, aids] { aids->setShown(m_comfort.comfort().underlines); });
    m_spelling.connectBox(*m_ui->rtfBox, aids->underlines());
    // The list comes when the author is back in the text.
    const auto openList = [this, aids] {
        if (!aids->openList())
            m_prompts.beep();
    };
    m_runner.add(*m_ui->menuEditReference, Kind::Saved, [aids, openList] {
        QMetaObject::invokeMethod(aids, openList, Qt::QueuedConnection);
    });
}

void formUsmira::connectSearchReplace()
{
    m_menuStates.add(*m_ui->menuEditSearch);
    connect(m_ui->menuEditSearch, &QAction::triggered, &m_searchReplace,
            &searchReplace::Form_Activate);
    m_runner.add(*m_ui->menuEditSearchAgain, Kind::Editing,
                 [this] { m_searchReplace.searchAgain(); });
    m_menuStates.watch(*m_ui->menuEdit);
    connect(&m_searchReplace, &searchReplace::left, this, &formUsmira::saveOnLeaving);
    connect(m_ui->rtfBox, &RtfBox::edited, &m_searchReplace, &searchReplace::forgetCount);
}

void formUsmira::connectMenus()
{
    connectEditMenu({*m_ui->menuEdit, *m_ui->menuEditUndo, *m_ui->menuEditRedo, *m_ui->menuEditCut,
                     *m_ui->menuEditCopy, *m_ui->menuEditPaste, *m_ui->menuEditPastePlain,
                     *m_ui->menuEditSelectAll},
                    *m_ui->rtfBox);
    m_history.connectItems({*m_ui->menuEditTakeBack, *m_ui->menuEditRedoCommand,
                            *m_ui->menuEditHistory, *m_ui->menuEditNumbers},
                           m_runner);
    m_functions.connectItems({*m_ui->menuComMasterMix, *m_ui->menuComSwap, *m_ui->menuComBlockMove,
                              *m_ui->menuComPackHoles, *m_ui->menuComTarget, *m_ui->menuComUniform,
                              *m_ui->menuComCount},
                             m_runner);
    m_views.connectItems({*m_ui->menuComGraphs, *m_ui->menuComGrid, *m_ui->menuComProxScan,
                          *m_ui->menuEditNumbers, *m_ui->menuComStatistics});
    m_checkMenu.connectItems({*m_ui->menuComCheck, *m_ui->menuComNextFinding,
                              *m_ui->menuComPrevFinding, *m_ui->statusBar});
    m_spelling.connectItems({*m_ui->menuComSpelling, *m_ui->menuEditSpelling});
    m_typography.connectItem(*m_ui->menuComTypography);
    connect(&m_page, &ParagraphPage::changed, this, [this] { m_views.followEditor(); });
    m_reading.connectItems({*m_ui->menuComReading, *m_ui->menuComReadingStart});
    m_menuStates.watch(*m_ui->menuCommands);
    connect(m_ui->menuCommands, &QMenu::aboutToShow, this, [this] { m_functions.showSwapKey(); });
    m_conversions.connectItems({*m_ui->menuConvRTF, *m_ui->menuConvSave1, *m_ui->menuConvLoad1,
                                *m_ui->menuConv1toHTML, *m_ui->menuConvNtoHTML, *m_ui->menuConvPdf,
                                *m_ui->menuConvEpub, *m_ui->menuConvPage},
                               *m_ui->rtfBox, m_runner);
    m_menuStates.watch(*m_ui->menuConv);
    m_runner.add(*m_ui->menuInfoSample, Kind::Anytime, [this] {
        m_adventure.OpenInstead(
            copyOfSample(findBundledDocuments(QCoreApplication::applicationDirPath())));
    });
    m_info.connectItems({*m_ui->menuInfoAide, *m_ui->menuInfoHelp, *m_ui->menuInfoAbout});
}

void formUsmira::connectComfort()
{
    new TypographyAids(m_variables, m_comfort, *m_ui->rtfBox);
    new ZoomKeys(m_comfort, *m_ui->rtfBox, *this);
    connect(&m_comfort, &ComfortKeeper::changed, this, &formUsmira::showComfort);
    const AdventureEvents *events = m_variables.Events.get();
    connect(events, &AdventureEvents::adventureReplaced, this, &formUsmira::rememberAdventure);
    connect(events, &AdventureEvents::modifiedChanged, this, &formUsmira::rememberAdventure);
    const auto *recent = new RecentMenu(m_comfort, *m_ui->menuAv, *m_ui->menuAvQuit);
    connect(recent, &RecentMenu::chosen, this, [this](const QString &path) {
        m_runner.run(Kind::Anytime, [this, path] { m_adventure.OpenInstead(path); });
    });
    m_runner.add(*m_ui->menuComOptions, Kind::Anytime, [this] { menuComOptions_Click(); });
}

void formUsmira::Form_Load()
{
    WindowGeometry geometry = geometryOf(*this);
    const WindowGeometry design = geometry;
    readSettings(WorkingFiles(m_variables).settings(), m_variables, geometry);
    if (geometry != design)
        place(*this, geometry);
    else
        shrinkToScreen(*this);
    if (QFileInfo::exists(WorkingFiles(m_variables).maximized()))
        setWindowState(windowState() | Qt::WindowMaximized);
    m_functions.showSwapKey();
    m_comfort.load(WorkingFiles(m_variables).comfort());
    m_page.showTabPanel();
    m_page.showWelcome(welcome());
    m_page.focusEditor();
}

// A working folder made by an earlier version has none in English.
QString formUsmira::welcome() const
{
    const WorkingFiles files(m_variables);
    const QString english = files.document(WorkingFiles::Document::EnglishWelcome);
    const bool wanted = localeOfTexts().language() == QLocale::English;
    return wanted && QFileInfo::exists(english) ? english
                                                : files.document(WorkingFiles::Document::Welcome);
}

void formUsmira::rescue()
{
    m_runner.rescue(tr("Une action a échoué."));
}

void formUsmira::openCommandLine(const QString &path)
{
    const QString last = m_comfort.comfort().adventures.value(0);
    if (!path.isEmpty())
        m_adventure.OpenAdventure(path);
    else if (m_comfort.comfort().reopenLast && QFileInfo(last).isFile())
        m_adventure.OpenAdventure(last);
}

bool formUsmira::openUnsaved(const QString &commandLine)
{
    return reportingFailures(m_prompts, [&] {
        const auto work = offerUnsavedWork(m_variables.WorkingFolder, m_prompts);
        if (!work)
            return false;
        m_adventure.OpenUnsaved(*work);
        if (m_variables.ParagraphDirty)
            m_page.rtfBox_Change();
        const QFileInfo waiting(commandLine);
        if (waiting.isFile() && waiting != QFileInfo(m_variables.AdventurePath)) {
            m_comfort.remember(waiting.absoluteFilePath());
            m_work.announce(tr("L'aventure %1 attend dans le menu.").arg(waiting.fileName()));
        }
        return true;
    });
}

bool formUsmira::event(QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate)
        saveOnLeaving();
    return QMainWindow::event(event);
}

// The author goes to another window, not to a box of ours.
void formUsmira::saveOnLeaving()
{
    const bool ownBox = QApplication::activeModalWidget() != nullptr;
    if (!ownBox && !m_work.isUnderWay() && !m_closed)
        m_page.Form_Deactivate();
}

// The settings are kept in every case, also when the author stays.
void formUsmira::closeEvent(QCloseEvent *event)
{
    bool leaves = false;
    {
        const CloseGuard guard(*this);
        m_page.keepingPlace([&] { leaves = m_adventure.LeaveAdventure(); });
    }
    try {
        writeSettings(WorkingFiles(m_variables).settings(), m_variables, geometryOf(*this));
        keepMaximized();
    } catch (const std::exception &) {
        // The next start has the settings of before.
    }
    m_comfort.save();
    if (leaves) {
        forgetHistory(m_variables);
        m_info.closeHelp();
        m_views.close();
    }
    event->setAccepted(leaves);
}

// The settings have no place for it: a file that is there says it.
void formUsmira::keepMaximized() const
{
    const QString path = WorkingFiles(m_variables).maximized();
    if (isMaximized())
        writeWholeFile(path, "1\r\n", Durability::Data, Links::Replace);
    else
        removeFile(path);
}

void formUsmira::showTitle()
{
    setWindowTitle(tr("Usmira - %1").arg(m_variables.AdventureFileName));
}

void formUsmira::showComfort()
{
    m_ui->rtfBox->setZoom(m_comfort.comfort().zoom);
    m_ui->rtfBox->setPageWidth(m_comfort.comfort().pageWidth);
}

// A new adventure has a file once it was saved.
void formUsmira::rememberAdventure()
{
    if (m_variables.AdventureOpen && QFileInfo::exists(m_variables.AdventurePath))
        m_comfort.remember(m_variables.AdventurePath);
    m_comfort.save();
}

void formUsmira::menuComOptions_Click()
{
    optionsDlog(m_variables, m_prompts, m_comfort, *m_ui->rtfBox, this).exec();
    m_functions.showSwapKey();
    m_comfort.save();
}

// A number that is none keeps the author in its box.
void formUsmira::txtPargNum_Enter()
{
    const std::optional<int> n = lenientParagraph(m_ui->txtPargNum->text());
    if (n) {
        m_runner.run(Kind::Adventure, [this, n] { m_navigation.goTo(*n); });
    } else if (m_variables.AdventureOpen) {
        m_prompts.beep();
        m_page.showNumber();
    }
}

void formUsmira::theList_Click()
{
    const int row = m_ui->theList->currentRow();
    m_runner.run(Kind::Adventure, [this, row] {
        if (row >= 1)
            m_navigation.goTo(m_ui->theList->numberOf(row));
    });
    m_ui->theList->setCurrentRow(-1);
}

void formUsmira::incomingList_Click()
{
    const int n = m_ui->incomingList->numberOf(m_ui->incomingList->currentRow());
    m_runner.run(Kind::Adventure, [this, n] { m_navigation.goTo(n); });
    m_ui->theList->setCurrentRow(-1);
}
