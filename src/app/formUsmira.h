#pragma once

#include "app/AdventuresMenu.h"
#include "app/CheckMenu.h"
#include "app/ConversionsMenu.h"
#include "app/FunctionsMenu.h"
#include "app/HistoryMenu.h"
#include "app/InfoMenu.h"
#include "app/ReadingMenu.h"
#include "app/SpellingMenu.h"
#include "app/TypographyMenu.h"
#include "app/ViewsMenu.h"
#include "app/WorkDisplay.h"
#include "editor/CommandRunner.h"
#include "editor/MenuStates.h"
#include "editor/Navigation.h"
#include "editor/ParagraphPage.h"
#include "editor/StatusLine.h"
#include "editor/options/EditorComfort.h"
#include "editor/search/searchReplace.h"
#include "store/AdventureCommands.h"
#include "store/TypedSnapshot.h"

#include <QMainWindow>
#include <memory>

namespace Ui
{
class formUsmira;
}

// The main window. It wires the controls to the classes that do the work and owns them; the state
// and the prompts must outlive it.
class formUsmira : public QMainWindow
{
    Q_OBJECT

public:
    formUsmira(Variables &variables, Prompts &prompts);
    ~formUsmira() override;

    // Start-up, before the window is shown: settings, geometry and the welcome text from the
    // working folder. Whatever is missing or damaged there is passed over.
    void Form_Load();

    // The command line as it stands is the path of an adventure; an empty one opens none, or the
    // one of last time where the author wants that.
    void openCommandLine(const QString &path);

    // At the start, before the command line: after a crash, the adventure of then with all that was
    // unsaved, if the author wants it back. The one of the command line, another than that, then
    // waits in the menu.
    bool openUnsaved(const QString &commandLine);

    // Keeps what is being typed for the next start, at once and without a question.
    void keepTyped() { m_typed.take(); }

    // See ParagraphPage.
    void LoadParg(int n) { m_page.LoadParg(n); }
    void SaveCurParg() { m_page.SaveCurParg(); }

    // Something failed that nobody foresaw: what was typed is saved, and the author told.
    void rescue();

    // How the editor looks and starts; loaded by Form_Load.
    const ComfortKeeper &comfort() const { return m_comfort; }

    // Shows in this window how work goes.
    WorkReport &work() { return m_work; }

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void connectAdventure();
    void connectNavigation();
    void connectLists();
    void connectBox();
    void connectSearchReplace();
    void connectReferences();
    void connectMenus();
    void connectComfort();

    void saveOnLeaving();
    void keepMaximized() const;
    void showTitle();
    void showComfort();
    QString welcome() const;
    void rememberAdventure();
    void menuComOptions_Click();
    void txtPargNum_Enter();
    void theList_Click();
    void incomingList_Click();

    Variables &m_variables;
    Prompts &m_prompts;
    ComfortKeeper m_comfort;
    std::unique_ptr<Ui::formUsmira> m_ui;
    WorkDisplay m_work;
    ParagraphPage m_page;
    TypedSnapshot m_typed;
    StatusLine m_status;
    MenuStates m_menuStates;
    CommandRunner m_runner;
    AdventureCommands m_adventure;
    AdventuresMenu m_adventures;
    Navigation m_navigation;
    searchReplace m_searchReplace;
    FunctionsMenu m_functions;
    HistoryMenu m_history;
    ReadingMenu m_reading;
    ViewsMenu m_views;
    CheckMenu m_checkMenu;
    SpellingMenu m_spelling;
    TypographyMenu m_typography;
    ConversionsMenu m_conversions;
    InfoMenu m_info;
    bool m_closed = false; // the window is going, and saves nothing any more
};
