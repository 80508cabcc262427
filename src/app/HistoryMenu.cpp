#include "app/HistoryMenu.h"

#include "editor/CommandRunner.h"
#include "renumber/history/HistoryWindow.h"
#include "store/AdventureEvents.h"
#include "widgets/ToolWindow.h"

#include <QAction>

namespace
{
// Of a command, as a menu shows it.
QString shortTitle(QString title)
{
    constexpr qsizetype longest = 50;
    if (title.size() > longest)
        title = title.left(longest - 1).trimmed() + u'…';
    return title.replace(u'&', QLatin1String("&&"));
}

void show(QAction &item, const std::optional<CommandHistory::Command> &command,
          const QString &withTitle, const QString &without)
{
    item.setEnabled(command.has_value());
    item.setText(command ? withTitle.arg(shortTitle(command->title)) : without);
}
} // namespace

HistoryMenu::HistoryMenu(Variables &variables, Prompts &prompts, WorkReport &report,
                         QWidget &window)
    : m_variables(variables), m_commands(variables, prompts, report), m_window(window)
{
}

HistoryMenu::~HistoryMenu() = default;

void HistoryMenu::connectItems(const Items &items, CommandRunner &runner)
{
    using Kind = CommandRunner::Kind;
    QObject::connect(&items.takeBack, &QAction::triggered, &items.takeBack, [this, &runner] {
        runner.run(Kind::Rewriting, [this] { m_commands.takeBack(); });
    });
    QObject::connect(&items.redo, &QAction::triggered, &items.redo, [this, &runner] {
        runner.run(Kind::Rewriting, [this] { m_commands.redo(); });
    });
    runner.add(items.list, Kind::Saved, [this, items, &runner] { showList(items, runner); });
    const auto refresh = [this, items] {
        show(items.takeBack, m_variables.History->nextToTakeBack(), tr("A&nnuler : %1"),
             tr("A&nnuler une commande"));
        show(items.redo, m_variables.History->nextToRedo(), tr("Ré&tablir : %1"),
             tr("Ré&tablir une commande"));
    };
    const AdventureEvents *events = m_variables.Events.get();
    QObject::connect(events, &AdventureEvents::historyChanged, &items.takeBack, refresh);
    QObject::connect(events, &AdventureEvents::adventureReplaced, &items.takeBack, refresh);
    refresh();
}

void HistoryMenu::showList(const Items &items, CommandRunner &runner)
{
    using Kind = CommandRunner::Kind;
    if (!m_list) {
        m_list = std::make_unique<HistoryWindow>(m_variables, &m_window);
        m_list->addActions({&items.takeBack, &items.redo}); // their shortcuts work there too
        QObject::connect(m_list.get(), &HistoryWindow::takeBackWanted, m_list.get(),
                         [this, &runner](int id) {
                             runner.run(Kind::Rewriting, [&] { m_commands.takeBackTo(id); });
                         });
        QObject::connect(m_list.get(), &HistoryWindow::redoWanted, m_list.get(),
                         [this, &runner](int id) {
                             runner.run(Kind::Rewriting, [&] { m_commands.redoTo(id); });
                         });
        QObject::connect(m_list.get(), &HistoryWindow::tableWanted, &items.numbers,
                         &QAction::trigger);
    }
    showAside(*m_list);
    m_list->focusList();
}
