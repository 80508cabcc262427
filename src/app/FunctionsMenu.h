#pragma once

#include "renumber/RenumberCommands.h"

class EditorView;
class MenuStates;
class QWidget;
class WorkReport;

namespace Ui
{
class formUsmira;
}

// The commands of the menu "Fonctions". Each saves the current paragraph first, does nothing more
// when that fails, and gives the focus back to the editing box at the end.
class FunctionsMenu
{
public:
    // window is the one that the dialogs stand on.
    FunctionsMenu(Variables &variables, Prompts &prompts, EditorView &view, WorkReport &report,
                  QWidget &window);

    void connectItems(const Ui::formUsmira &ui, MenuStates &states);

private:
    template <typename Dialog> void renumber();
    void menuComCount_Click();

    const Variables &m_variables;
    Prompts &m_prompts;
    EditorView &m_view;
    QWidget &m_window;
    RenumberCommands m_commands;
};
