#include "app/ViewsMenu.h"

#include "app/ReadingMenu.h"
#include "editor/CommandRunner.h"
#include "editor/FirstWords.h"
#include "editor/Navigation.h"
#include "renumber/history/NumberWindow.h"
#include "renumber/proximityScan.h"
#include "views/graph/paraGraphs.h"
#include "views/grid/paraGrid.h"
#include "views/statistics/statisticsWindow.h"
#include "widgets/ToolWindow.h"

namespace
{
std::function<QString(int)> firstWordsOf(const Variables &variables)
{
    return [&variables](int n) { return firstWords(variables, n); };
}
} // namespace

ViewsMenu::ViewsMenu(const Variables &variables, Prompts &prompts, const Editor &editor,
                     QWidget &window)
    : m_variables(variables), m_prompts(prompts), m_editor(editor), m_window(window)
{
}

ViewsMenu::~ViewsMenu() = default;

void ViewsMenu::connectItems(const Items &items)
{
    using Kind = CommandRunner::Kind;
    m_editor.runner.add(items.graphs, Kind::Saved, [this] { menuComGraphs_Click(); });
    m_editor.runner.add(items.grid, Kind::Saved, [this] { menuComGrid_Click(); });
    m_editor.runner.add(items.proxScan, Kind::Saved, [this] { menuComProxScan_Click(); });
    m_editor.runner.add(items.numbers, Kind::Saved, [this] { showNumbers(); });
    m_editor.runner.add(items.statistics, Kind::Saved, [this] { menuComStatistics_Click(); });
}

template <typename Window, typename... Arguments>
Window &ViewsMenu::made(std::unique_ptr<Window> &window, Arguments &...arguments)
{
    if (!window) {
        window = std::make_unique<Window>(arguments..., &m_window);
        QObject::connect(window.get(), &Window::wanted, window.get(), [this](int n) { goTo(n); });
    }
    return *window;
}

void ViewsMenu::goTo(int n)
{
    m_editor.runner.run(CommandRunner::Kind::Adventure, [this, n] { m_editor.navigation.goTo(n); });
}

void ViewsMenu::followEditor()
{
    if (m_grid)
        m_grid->followEditor();
    if (m_graphs)
        m_graphs->followEditor();
}

void ViewsMenu::close()
{
    if (m_graphs)
        m_graphs->close();
}

// It may cover the main window, which comes to the front for what is wanted of it.
void ViewsMenu::menuComGraphs_Click()
{
    if (!m_graphs) {
        m_graphs = std::make_unique<paraGraphs>(m_variables, m_prompts);
        QObject::connect(m_graphs.get(), &paraGraphs::wanted, m_graphs.get(), [this](int n) {
            m_window.raise();
            m_window.activateWindow();
            goTo(n);
        });
    }
    m_graphs->showCurrent();
}

paraGrid &ViewsMenu::grid()
{
    return made(m_grid, m_variables);
}

void ViewsMenu::menuComGrid_Click()
{
    showAside(grid());
    grid().focusGrid();
}

void ViewsMenu::menuComProxScan_Click()
{
    proximityScan &window = made(m_proximityScan, m_variables, m_prompts);
    showAside(window);
    window.focusNumber();
}

void ViewsMenu::showNumbers()
{
    const std::function<QString(int)> words = firstWordsOf(m_variables);
    NumberWindow &window = made(m_numbers, m_variables, m_prompts, words);
    showAside(window);
    window.focusTable();
}

void ViewsMenu::menuComStatistics_Click()
{
    if (!m_statistics) {
        const std::function<QString(int)> words = firstWordsOf(m_variables);
        statisticsWindow &window = made(m_statistics, m_variables, m_prompts, words);
        QObject::connect(&window, &statisticsWindow::wayWanted, &window,
                         [this](const QList<int> &way) { m_editor.reading.showWay(way); });
        QObject::connect(&window, &statisticsWindow::shadesChanged, &window,
                         [this](const std::optional<GridShades> &shades) { showShades(shades); });
    }
    showAside(*m_statistics);
    m_statistics->focusPages();
}

// The grid comes to the front when it has shades to show for the first time, and not again with
// every change of the book.
void ViewsMenu::showShades(const std::optional<GridShades> &shades)
{
    if (!shades && !m_grid)
        return;
    const bool begins = shades && !grid().isShaded();
    grid().setShades(shades);
    if (begins)
        menuComGrid_Click();
}
