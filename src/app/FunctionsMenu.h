#pragma once

#include "renumber/RenumberCommands.h"

#include <QCoreApplication>

class CommandRunner;
class QAction;
class QWidget;
class WorkReport;

// The commands of the menu "Fonctions".
class FunctionsMenu
{
    Q_DECLARE_TR_FUNCTIONS(FunctionsMenu)

public:
    // window is the one that the dialogs stand on.
    FunctionsMenu(Variables &variables, Prompts &prompts, WorkReport &report, QWidget &window);

    struct Items {
        QAction &masterMix;
        QAction &swap;
        QAction &blockMove;
        QAction &packHoles;
        QAction &target;
        QAction &uniform;
        QAction &count;
    };
    void connectItems(const Items &items, CommandRunner &runner);

    // The key of the swap depends on what Ctrl+E does.
    void showSwapKey();

private:
    template <typename Dialog> void show();
    void menuComTarget_Click();
    void menuComUniform_Click();
    void menuComCount_Click();

    Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    QWidget &m_window;
    RenumberCommands m_commands;
    QAction *m_swap = nullptr;
};
