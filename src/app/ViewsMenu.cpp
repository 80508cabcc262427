#include "app/ViewsMenu.h"

#include "editor/CommandRunner.h"
#include "editor/Navigation.h"
#include "renumber/proximityScan.h"
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
    m_editor.runner.add(items.proxScan, Kind::Saved, [this] { menuComProxScan_Click(); });
}

template <typename Window> Window &ViewsMenu::made(std::unique_ptr<Window> &window)
{
    if (!window) {
        window = std::make_unique<Window>(m_variables, m_prompts, &m_window);
        QObject::connect(window.get(), &Window::wanted, window.get(), [this](int n) { goTo(n); });
    }
    return *window;
}

void ViewsMenu::goTo(int n)
{
    m_editor.runner.run(CommandRunner::Kind::Adventure, [this, n] { m_editor.navigation.goTo(n); });
}

void ViewsMenu::menuComProxScan_Click()
{
    proximityScan &window = made(m_proximityScan);
    showAside(window);
    window.focusNumber();
}
