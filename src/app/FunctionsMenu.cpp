#include "app/FunctionsMenu.h"

#include "editor/CommandRunner.h"
#include "editor/ParagraphSearch.h"
#include "editor/TargetPhrase.h"
#include "editor/targetDlog.h"
#include "editor/uniformFormat.h"
#include "renumber/blockMove.h"
#include "renumber/exchangeDlog.h"
#include "renumber/masterMix.h"
#include "renumber/packHoles.h"

#include <QAction>
#include <QKeySequence>

FunctionsMenu::FunctionsMenu(Variables &variables, Prompts &prompts, WorkReport &report,
                             QWidget &window)
    : m_variables(variables), m_prompts(prompts), m_report(report), m_window(window),
      m_commands(variables, prompts, report)
{
}

void FunctionsMenu::connectItems(const Items &items, CommandRunner &runner)
{
    using Kind = CommandRunner::Kind;
    runner.add(items.masterMix, Kind::Rewriting, [this] { show<masterMix>(); });
    runner.add(items.swap, Kind::Rewriting, [this] { show<exchangeDlog>(); });
    runner.add(items.blockMove, Kind::Rewriting, [this] { show<blockMove>(); });
    runner.add(items.packHoles, Kind::Rewriting, [this] { show<packHoles>(); });
    runner.add(items.target, Kind::Rewriting, [this] { menuComTarget_Click(); });
    m_swap = &items.swap;
    runner.add(items.uniform, Kind::Rewriting, [this] { menuComUniform_Click(); });
    runner.add(items.count, Kind::Saved, [this] { menuComCount_Click(); });
}

// French keyboards have the digit with Shift, and a quotation mark without.
void FunctionsMenu::showSwapKey()
{
    if (m_variables.optCtrlECentres)
        m_swap->setShortcuts({Qt::CTRL | Qt::Key_3, Qt::CTRL | Qt::Key_QuoteDbl});
    else
        m_swap->setShortcut(Qt::CTRL | Qt::Key_E);
}

template <typename Dialog> void FunctionsMenu::show()
{
    Dialog(m_variables, m_prompts, m_commands, &m_window).exec();
}

void FunctionsMenu::menuComTarget_Click()
{
    targetDlog dialog(m_variables.TargetPhrase, m_prompts, &m_window);
    if (dialog.exec() == QDialog::Accepted)
        changeTargetPhrase(m_variables, dialog.phrase(), m_report);
}

void FunctionsMenu::menuComUniform_Click()
{
    uniformFormat(m_variables, m_prompts, m_report, &m_window).exec();
}

void FunctionsMenu::menuComCount_Click()
{
    m_prompts.message(tr("Paragraphes rédigés : %1").arg(countWritten(m_variables)), tr("Compte"),
                      Prompts::Buttons::Ok);
}
