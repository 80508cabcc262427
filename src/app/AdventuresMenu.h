#pragma once

#include "renumber/AdventureSplit.h"
#include "store/AdventureMerge.h"

class CommandRunner;
class QAction;
class QWidget;

// The commands of the menu "Aventures" that write or read another adventure than the open one.
class AdventuresMenu
{
public:
    // window is the one that the dialogs stand on.
    AdventuresMenu(Variables &variables, Prompts &prompts, WorkReport &report, QWidget &window);

    struct Items {
        QAction &saveCopy;
        QAction &split;
        QAction &merge;
    };
    void connectItems(const Items &items, CommandRunner &runner);

private:
    void menuAvExport_Click();

    const Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    QWidget &m_window;
    AdventureSplit m_split;
    AdventureMerge m_merge;
};
