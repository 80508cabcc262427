#include "app/AdventuresMenu.h"

#include "app/copiesDlog.h"
#include "convert/AdventureCopy.h"
#include "editor/CommandRunner.h"
#include "renumber/splitFile.h"
#include "store/AdventureCommands.h"

AdventuresMenu::AdventuresMenu(Variables &variables, Prompts &prompts, WorkReport &report,
                               AdventureCommands &commands, QWidget &window)
    : m_variables(variables), m_prompts(prompts), m_report(report), m_commands(commands),
      m_window(window), m_split(variables, prompts, report), m_merge(variables, prompts, report)
{
}

void AdventuresMenu::connectItems(const Items &items, CommandRunner &runner)
{
    using Kind = CommandRunner::Kind;
    runner.add(items.saveCopy, Kind::Saved, [this] { saveCopy(m_variables, m_prompts, m_report); });
    runner.add(items.copies, Kind::Adventure, [this] { menuAvCopies_Click(); });
    runner.add(items.split, Kind::Rewriting, [this] { menuAvExport_Click(); });
    runner.add(items.merge, Kind::Rewriting, [this] { m_merge.Import(); });
}

void AdventuresMenu::menuAvCopies_Click()
{
    copiesDlog dialog(m_variables, &m_window);
    if (dialog.exec() == QDialog::Accepted)
        m_commands.OpenCopy(dialog.chosen());
}

void AdventuresMenu::menuAvExport_Click()
{
    splitFile(m_variables, m_prompts, m_split, &m_window).exec();
}
