#include "app/FunctionsMenu.h"

#include "editor/EditorView.h"
#include "editor/MenuStates.h"
#include "editor/ParagraphSearch.h"
#include "platform/Guarded.h"
#include "renumber/blockMove.h"
#include "renumber/exchangeDlog.h"
#include "renumber/masterMix.h"
#include "renumber/packHoles.h"
#include "ui_formUsmira.h"

FunctionsMenu::FunctionsMenu(Variables &variables, Prompts &prompts, EditorView &view,
                             WorkReport &report, QWidget &window)
    : m_variables(variables), m_prompts(prompts), m_view(view), m_window(window),
      m_commands(variables, prompts, report)
{
}

void FunctionsMenu::connectItems(const Ui::formUsmira &ui, MenuStates &states)
{
    const auto connectItem = [this](const QAction *item, auto command) {
        connectGuarded(item, &QAction::triggered, &m_window, m_prompts, [this, command] {
            if (m_variables.AdventureOpen)
                (this->*command)();
        });
    };
    connectItem(ui.menuComMasterMix, &FunctionsMenu::renumber<masterMix>);
    connectItem(ui.menuComSwap, &FunctionsMenu::renumber<exchangeDlog>);
    connectItem(ui.menuComBlockMove, &FunctionsMenu::renumber<blockMove>);
    connectItem(ui.menuComPackHoles, &FunctionsMenu::renumber<packHoles>);
    connectItem(ui.menuComCount, &FunctionsMenu::menuComCount_Click);
    states.add(*ui.menuCommands, {ui.menuComMasterMix, ui.menuComSwap, ui.menuComBlockMove,
                                  ui.menuComPackHoles, ui.menuComCount});
}

// The number stays, and another text may bear it now. When that one cannot be read, the one in the
// box must not be saved under its number.
template <typename Dialog> void FunctionsMenu::renumber()
{
    m_view.SaveCurParg();
    const bool renumbered =
        Dialog(m_variables, m_prompts, m_commands, &m_window).exec() == QDialog::Accepted;
    const bool shown = reportingFailures(m_prompts, [this] {
        m_view.LoadParg(m_variables.CurrentParagraph);
        return true;
    });
    if (renumbered && !shown)
        m_view.showNothing();
    m_view.focusEditor();
}

void FunctionsMenu::menuComCount_Click()
{
    m_view.SaveCurParg();
    m_prompts.message(QStringLiteral("Paragraphes rédigés : ") +
                          QString::number(countWritten(m_variables)),
                      QStringLiteral("Compte"), Prompts::Buttons::Ok);
    m_view.focusEditor();
}
