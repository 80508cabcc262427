#include "app/ViewsMenu.h"

#include "editor/CommandRunner.h"
#include "editor/FirstWords.h"
#include "editor/Navigation.h"
#include "renumber/history/NumberWindow.h"
#include "renumber/proximityScan.h"
#include "views/graph/paraGraphs.h"
#include "views/grid/paraGrid.h"
#include "widgets/ToolWindow.h"

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

void ViewsMenu::menuComGrid_Click()
{
    paraGrid &window = made(m_grid, m_variables);
    showAside(window);
    window.focusGrid();
}

void ViewsMenu::menuComProxScan_Click()
{
    proximityScan &window = made(m_proximityScan, m_variables, m_prompts);
    showAside(window);
    window.focusNumber();
}

void ViewsMenu::showNumbers()
{
    const std::function<QString(int)> words = [this](int n) { return firstWords(m_variables, n); };
    NumberWindow &window = made(m_numbers, m_variables, m_prompts, words);
    showAside(window);
    window.focusTable();
}
