#pragma once

#include "renumber/history/HistoryCommands.h"

#include <QCoreApplication>

class CommandRunner;
class QAction;

// The entries of the menu "Édition" that take commands on the whole adventure back and do them once
// more. They say which one, and are enabled while there is one.
class HistoryMenu
{
    Q_DECLARE_TR_FUNCTIONS(HistoryMenu)

public:
    HistoryMenu(Variables &variables, Prompts &prompts, WorkReport &report);

    struct Items {
        QAction &takeBack;
        QAction &redo;
    };
    void connectItems(const Items &items, CommandRunner &runner);

private:
    const Variables &m_variables;
    HistoryCommands m_commands;
};
