#include "app/formUsmira.h"

#include "app/EditMenu.h"
#include "app/WindowPlacement.h"
#include "editor/BoxKeys.h"
#include "editor/FirstWords.h"
#include "editor/PadNumber.h"
#include "editor/ParagraphSearch.h"
#include "platform/Guarded.h"
#include "store/ParagraphStore.h"
#include "store/ReferenceIndex.h"
#include "ui_formUsmira.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace
{
constexpr QSize DesignSize(1080, 720);

QString settingsPath(const Variables &variables)
{
    return variables.WorkingFolder + QStringLiteral("Usmira Settings.xyz");
}

// What stands on the form takes parts of it, so that it must be there first.
std::unique_ptr<Ui::formUsmira> setUp(formUsmira &window)
{
    auto ui = std::make_unique<Ui::formUsmira>();
    ui->setupUi(&window);
    return ui;
}
} // namespace

formUsmira::formUsmira(Variables &variables, Prompts &prompts)
    : m_variables(variables), m_prompts(prompts), m_ui(setUp(*this)),
      m_work(*m_ui->labBehind, *m_ui->barWork, *m_ui->rtfBox, *m_ui->statusBar),
      m_adventure(variables, prompts, *this, m_work), m_navigation(variables, prompts, *this),
      m_functions(variables, prompts, *this, m_work, *this),
      m_conversions(variables, prompts, *this, m_work, *this), m_info(variables, prompts, *this),
      m_menuStates(variables), m_visited(*m_ui->theList),
      m_status(variables, *m_ui->rtfBox, *m_ui->statusBar)
{
    resize(DesignSize);
    connectAdventure();
    connectNavigation();
    connectNumberBox();
    connectLists();
    connectBox();
    connectFormatting();
    connectMenus();
    showAdventureOpen();
}

// A window still shown would be hidden after its members are gone, and its controls would tell it
// that they lose the focus.
formUsmira::~formUsmira()
{
    m_closed = true;
    hide();
}

void formUsmira::connectBoth(const QAction *action, const QToolButton *button, const Work &work)
{
    connectGuarded(action, &QAction::triggered, this, m_prompts, work);
    connectGuarded(button, &QToolButton::clicked, this, m_prompts, work);
}

void formUsmira::connectAdventure()
{
    connectBoth(m_ui->menuAvNew, m_ui->btnNew, [this] { m_adventure.New(); });
    connectBoth(m_ui->menuAvOpen, m_ui->btnOpen, [this] { m_adventure.Open(); });
    connectBoth(m_ui->menuAvSave, m_ui->btnSave, [this] {
        m_adventure.Save();
        m_status.refresh();
    });
    connect(m_ui->menuAvQuit, &QAction::triggered, this, &QWidget::close);
}

void formUsmira::connectNavigation()
{
    const auto go = [this](void (Navigation::*command)()) {
        return [this, command] { (m_navigation.*command)(); };
    };
    connectBoth(m_ui->menuNavFirst, m_ui->btnFirst, go(&Navigation::goToFirst));
    connectBoth(m_ui->menuNavLast, m_ui->btnLast, go(&Navigation::goToLast));
    connectBoth(m_ui->menuNavNext, m_ui->btnNext, go(&Navigation::goToNext));
    connectBoth(m_ui->menuNavPrev, m_ui->btnPrev, go(&Navigation::goToPrevious));
    const auto search = [this](Navigation::Search where) {
        return [this, where] { m_navigation.goWhere(where); };
    };
    connectBoth(m_ui->menuNavNextTyped, m_ui->btnNextTyped, search(nextTyped));
    connectBoth(m_ui->menuNavPrevTyped, m_ui->btnPrevTyped, search(previousTyped));
    connectBoth(m_ui->menuNavNextEmpty, m_ui->btnNextEmpty, search(nextEmpty));
    connectBoth(m_ui->menuNavPrevEmpty, m_ui->btnPrevEmpty, search(previousEmpty));
    connectGuarded(m_ui->menuNavFirstFree, &QAction::triggered, this, m_prompts,
                   go(&Navigation::tellFirstFree));
}

void formUsmira::connectNumberBox()
{
    NumberBox::connectBeeps(*this, m_prompts);
    connectGuarded(m_ui->txtPargNum, &QLineEdit::returnPressed, this, m_prompts, [this] {
        if (!m_navigation.goToTyped(m_ui->txtPargNum->text()))
            showNumber();
    });
    // A number that was not confirmed is dropped when the focus goes.
    connect(m_ui->txtPargNum, &QLineEdit::editingFinished, this, &formUsmira::showNumber);
}

void formUsmira::connectLists()
{
    connectGuarded(m_ui->theList, &NumberList::chosen, this, m_prompts,
                   [this] { theList_Click(); });
    connectGuarded(m_ui->incomingList, &NumberList::chosen, this, m_prompts,
                   [this] { incomingList_Click(); });
    for (NumberList *list : {m_ui->theList, m_ui->incomingList})
        list->setFirstWords([this](int n) { return firstWords(m_variables, n); });
    connect(m_ui->btnVider, &QToolButton::clicked, this, &formUsmira::btnVider_Click);
    connect(m_ui->btnUnmixable, &QCheckBox::clicked, this, &formUsmira::btnUnmixable_Click);
}

void formUsmira::connectBox()
{
    RtfBox *box = m_ui->rtfBox;
    connect(box, &RtfBox::edited, this, &formUsmira::rtfBox_Change);
    connect(box, &QTextEdit::selectionChanged, this, &formUsmira::refreshFormatting);
    connect(box, &QTextEdit::cursorPositionChanged, this, &formUsmira::refreshFormatting);
    auto *keys = new BoxKeys(m_variables, *box, *m_ui->formattingBar);
    connectGuarded(keys, &BoxKeys::ctrlClicked, this, m_prompts,
                   [this] { m_navigation.followNumberAtCaret(); });
}

void formUsmira::connectFormatting()
{
    m_ui->formattingBar->attach(*m_ui->rtfBox);
    m_ui->frameTabPanel->attach(*m_ui->rtfBox);
    connect(m_ui->frameTabPanel, &TabPanel::tabRefused, this, [this] { m_prompts.beep(); });
    connect(m_ui->formattingBar, &FormattingBar::moreClicked, this, &formUsmira::btnMore_Click);
}

void formUsmira::connectMenus()
{
    connectEditMenu(*m_ui, *m_ui->rtfBox);
    m_functions.connectItems(*m_ui, m_menuStates);
    m_conversions.connectItems(*m_ui, m_menuStates);
    m_info.connectItems(*m_ui);
    m_menuStates.add(*m_ui->menuAv, {m_ui->menuAvSave});
    m_menuStates.add(*m_ui->menuNav, m_ui->menuNav->actions());
}

void formUsmira::Form_Load()
{
    WindowGeometry geometry = geometryOf(*this);
    const WindowGeometry design = geometry;
    readSettings(settingsPath(m_variables), m_variables, geometry);
    if (geometry != design)
        place(*this, geometry);
    else
        shrinkToScreen(*this);
    showTabPanel();
    m_ui->rtfBox->setBaseFont(m_variables.defaultFontName, m_variables.defaultFontSize);
    try {
        const QScopedValueRollback loading(m_loading, true);
        m_ui->rtfBox->loadFile(m_variables.WorkingFolder + QStringLiteral("Copyright.rtf"));
    } catch (const UsmiraError &) {
        m_ui->rtfBox->setText({}); // the author writes just as well without the welcome
    }
    refreshFormatting();
    focusEditor();
}

void formUsmira::openCommandLine(const QString &path)
{
    if (!path.isEmpty())
        m_adventure.OpenAdventure(path);
}

WorkReport &formUsmira::work()
{
    return m_work;
}

RichTextBox &formUsmira::editingBox()
{
    return *m_ui->rtfBox;
}

void formUsmira::LoadParg(int n)
{
    setText(GetParagraphRtf(m_variables, n));
    m_variables.CurrentParagraph = static_cast<qint16>(n);
    m_visited.visit(n);
    showCurrent(m_variables.AdventureOpen);
}

void formUsmira::showNothing()
{
    setText({});
    showCurrent(false);
}

void formUsmira::setText(const QByteArray &rtf)
{
    const QScopedValueRollback loading(m_loading, true);
    m_ui->rtfBox->setRtf(rtf);
}

// What stands around the box, once it holds what it is to show of the current number.
void formUsmira::showCurrent(bool editable)
{
    const int n = m_variables.CurrentParagraph;
    m_variables.ParagraphDirty = false;
    setTextEditable(editable);
    showNumber();
    m_ui->btnUnmixable->setChecked(m_variables.Unmixable.at(n) == 1);
    refreshFormatting();
    fillIncomingList(n);
    m_status.refresh();
}

void formUsmira::SaveCurParg()
{
    ::SaveCurParg(m_variables, *m_ui->rtfBox);
    m_status.refresh();
}

void formUsmira::adventureReplaced()
{
    setWindowTitle(QStringLiteral("Usmira - ") + m_variables.AdventureFileName);
    m_visited.clear();
    showAdventureOpen();
}

void formUsmira::focusEditor()
{
    m_ui->rtfBox->setFocus();
}

bool formUsmira::event(QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate)
        Form_Deactivate();
    return QMainWindow::event(event);
}

// Going to another window saves the paragraph but does not move the author within it.
void formUsmira::Form_Deactivate()
{
    const bool ownBox = QApplication::activeModalWidget() != nullptr;
    if (!m_variables.AdventureOpen || !m_variables.ParagraphDirty || m_work.isUnderWay() ||
        m_closed || ownBox)
        return;
    RtfBox *box = m_ui->rtfBox;
    const QTextCursor caret = box->textCursor();
    const int scrolled = box->verticalScrollBar()->value();
    reportingFailures(m_prompts, [this] {
        SaveCurParg();
        return true;
    });
    box->setTextCursor(caret);
    box->verticalScrollBar()->setValue(scrolled);
}

// The settings are kept in every case, also when the author stays.
void formUsmira::closeEvent(QCloseEvent *event)
{
    const bool leaves = m_adventure.LeaveAdventure();
    try {
        writeSettings(settingsPath(m_variables), m_variables, geometryOf(*this));
    } catch (const FileError &) {
        // The next start has the settings of before.
    }
    m_status.refresh();
    if (leaves)
        m_info.closeHelp();
    event->setAccepted(leaves);
}

// What works only on an open adventure is enabled once there is one.
void formUsmira::showAdventureOpen()
{
    const bool open = m_variables.AdventureOpen;
    setTextEditable(open);
    m_ui->btnSave->setEnabled(open);
    m_ui->btnUnmixable->setEnabled(open);
    for (QToolButton *button :
         {m_ui->btnFirst, m_ui->btnPrevTyped, m_ui->btnPrevEmpty, m_ui->btnPrev, m_ui->btnNext,
          m_ui->btnNextEmpty, m_ui->btnNextTyped, m_ui->btnLast})
        button->setEnabled(open);
    m_ui->txtPargNum->setFiltering(open);
    m_menuStates.refresh();
    showNumber();
    m_status.refresh();
}

void formUsmira::setTextEditable(bool on)
{
    m_ui->rtfBox->setReadOnly(!on);
    m_ui->formattingBar->setEditable(on);
    m_ui->frameTabPanel->setEnabled(on);
}

void formUsmira::showTabPanel()
{
    m_ui->frameTabPanel->setVisible(m_variables.showTabPanel != 0);
    m_ui->formattingBar->setMoreShown(m_variables.showTabPanel != 0);
}

void formUsmira::showNumber()
{
    m_ui->txtPargNum->setText(m_variables.AdventureOpen
                                  ? QString::number(m_variables.CurrentParagraph)
                                  : QStringLiteral("Vide"));
}

void formUsmira::refreshFormatting()
{
    if (m_loading)
        return;
    m_ui->formattingBar->refresh();
    if (m_variables.showTabPanel != 0)
        m_ui->frameTabPanel->refresh();
}

void formUsmira::fillIncomingList(int n)
{
    m_ui->incomingList->clear();
    const QList<int> incoming = incomingParagraphs(m_variables, n);
    for (const int from : incoming)
        m_ui->incomingList->addItem(PadNumber(from));
}

void formUsmira::rtfBox_Change()
{
    if (!m_variables.AdventureOpen)
        return;
    m_variables.ParagraphDirty = true;
    refreshFormatting();
    m_status.refresh();
}

void formUsmira::theList_Click()
{
    const int row = m_ui->theList->currentRow();
    if (row >= 1)
        m_navigation.goTo(m_ui->theList->numberOf(row));
    m_ui->theList->setCurrentRow(-1);
    focusEditor();
}

void formUsmira::incomingList_Click()
{
    m_navigation.goTo(m_ui->incomingList->numberOf(m_ui->incomingList->currentRow()));
    m_ui->theList->setCurrentRow(-1);
}

void formUsmira::btnVider_Click()
{
    m_visited.clear();
    if (m_variables.AdventureOpen)
        m_visited.visit(m_variables.CurrentParagraph);
    focusEditor();
}

void formUsmira::btnUnmixable_Click()
{
    if (m_variables.AdventureOpen)
        m_variables.Unmixable.at(m_variables.CurrentParagraph) =
            m_ui->btnUnmixable->isChecked() ? 1 : 0;
}

void formUsmira::btnMore_Click()
{
    m_variables.showTabPanel = m_variables.showTabPanel != 0 ? 0 : -1;
    showTabPanel();
    refreshFormatting();
}
