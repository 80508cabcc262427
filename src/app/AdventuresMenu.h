#pragma once

#include "renumber/AdventureSplit.h"
#include "store/AdventureMerge.h"

class AdventureCommands;
class CommandRunner;
class QAction;
class QWidget;

// The commands of the menu "Aventures" that write or read another adventure than the open one.
class AdventuresMenu
{
public:
    // window is the one that the dialogs stand on.
    AdventuresMenu(Variables &variables, Prompts &prompts, WorkReport &report,
                   AdventureCommands &commands, QWidget &window);

    struct Items {
        QAction &saveCopy;
        QAction &copies;
        QAction &split;
        QAction &merge;
    };
    void connectItems(const Items &items, CommandRunner &runner);

private:
    void menuAvCopies_Click();
    void menuAvExport_Click();

    const Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    AdventureCommands &m_commands;
    QWidget &m_window;
    AdventureSplit m_split;
    AdventureMerge m_merge;
};
