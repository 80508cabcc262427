#pragma once

#include "app/ConversionsMenu.h"
#include "app/FunctionsMenu.h"
#include "app/InfoMenu.h"
#include "app/WorkDisplay.h"
#include "editor/EditorView.h"
#include "editor/MenuStates.h"
#include "editor/Navigation.h"
#include "editor/StatusLine.h"
#include "editor/VisitedList.h"
#include "store/AdventureCommands.h"

#include <QMainWindow>
#include <functional>
#include <memory>

class QAction;
class QToolButton;

namespace Ui
{
class formUsmira;
}

// The main window: shows one paragraph, CurrentParagraph, in rtfBox. It wires the controls to the
// classes that do the work and owns them; the state and the prompts must outlive it.
class formUsmira : public QMainWindow, public EditorView
{
    Q_OBJECT

public:
    formUsmira(Variables &variables, Prompts &prompts);
    ~formUsmira() override;

    // Start-up, before the window is shown: settings, geometry and the welcome text from the
    // working folder. Whatever is missing or damaged there is passed over.
    void Form_Load();

    // The command line as it stands is the path of an adventure; an empty one opens none.
    void openCommandLine(const QString &path);

    // Shows in this window how work goes.
    WorkReport &work();

    RichTextBox &editingBox() override;
    void LoadParg(int n) override;
    void SaveCurParg() override;
    void rtfBox_Change() override;
    void adventureReplaced() override;
    void showNothing() override;
    void focusEditor() override;

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    using Work = std::function<void()>;
    void connectAdventure();
    void connectNavigation();
    void connectNumberBox();
    void connectLists();
    void connectBox();
    void connectFormatting();
    void connectMenus();
    void connectBoth(const QAction *action, const QToolButton *button, const Work &work);

    void Form_Deactivate();
    void showAdventureOpen();
    void setText(const QByteArray &rtf);
    void setTextEditable(bool on);
    void showTabPanel();
    void showNumber();
    void showCurrent(bool editable);
    void refreshFormatting();
    void fillIncomingList(int n);

    void theList_Click();
    void incomingList_Click();
    void btnVider_Click();
    void btnUnmixable_Click();
    void btnMore_Click();

    Variables &m_variables;
    Prompts &m_prompts;
    std::unique_ptr<Ui::formUsmira> m_ui;
    WorkDisplay m_work;
    AdventureCommands m_adventure;
    Navigation m_navigation;
    FunctionsMenu m_functions;
    ConversionsMenu m_conversions;
    InfoMenu m_info;
    MenuStates m_menuStates;
    VisitedList m_visited;
    StatusLine m_status;
    bool m_loading = false; // the program, not the author, is changing the box
    bool m_closed = false;  // the window is going, and saves nothing any more
};
