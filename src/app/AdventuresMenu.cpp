#include "app/AdventuresMenu.h"

#include "convert/AdventureCopy.h"
#include "editor/CommandRunner.h"
#include "renumber/splitFile.h"

AdventuresMenu::AdventuresMenu(Variables &variables, Prompts &prompts, WorkReport &report,
                               QWidget &window)
    : m_variables(variables), m_prompts(prompts), m_report(report), m_window(window),
      m_split(variables, prompts, report), m_merge(variables, prompts, report)
{
}

void AdventuresMenu::connectItems(const Items &items, CommandRunner &runner)
{
    using Kind = CommandRunner::Kind;
    runner.add(items.saveCopy, Kind::Saved, [this] { saveCopy(m_variables, m_prompts, m_report); });
    runner.add(items.split, Kind::Rewriting, [this] { menuAvExport_Click(); });
    runner.add(items.merge, Kind::Rewriting, [this] { m_merge.Import(); });
}

void AdventuresMenu::menuAvExport_Click()
{
    splitFile(m_variables, m_prompts, m_split, &m_window).exec();
}
