#pragma once

#include "renumber/history/HistoryCommands.h"

#include <QCoreApplication>
#include <memory>

class CommandRunner;
class HistoryWindow;
class QAction;
class QWidget;

// The entries of the menu "Édition" that take commands on the whole adventure back and do them once
// more. They say which one, and are enabled while there is one. It owns the window that lists the
// commands, which is made when it is first wanted.
class HistoryMenu
{
    Q_DECLARE_TR_FUNCTIONS(HistoryMenu)

public:
    // window is the one that the list stands beside.
    HistoryMenu(Variables &variables, Prompts &prompts, WorkReport &report, QWidget &window);
    ~HistoryMenu();

    struct Items {
        QAction &takeBack;
        QAction &redo;
        QAction &list;
        QAction &numbers; // the command that shows the table of numbers
    };
    void connectItems(const Items &items, CommandRunner &runner);

private:
    void showList(const Items &items, CommandRunner &runner);

    const Variables &m_variables;
    HistoryCommands m_commands;
    QWidget &m_window;
    std::unique_ptr<HistoryWindow> m_list;
};
