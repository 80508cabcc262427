#pragma once

#include "platform/Prompts.h"
#include "store/Variables.h"
#include "views/grid/GridShades.h"

#include <memory>
#include <optional>

class CommandRunner;
class Navigation;
class NumberWindow;
class QAction;
class QWidget;
class ReadingMenu;
class paraGraphs;
class paraGrid;
class proximityScan;
class statisticsWindow;

// The commands that show the adventure as a whole, in windows that stay open beside the editing
// box. It owns these windows; each is made when it is first wanted.
class ViewsMenu
{
public:
    struct Editor {
        Navigation &navigation;
        CommandRunner &runner;
        ReadingMenu &reading;
    };
    // window is the one that they stand beside; all of these must outlive it.
    ViewsMenu(const Variables &variables, Prompts &prompts, const Editor &editor, QWidget &window);
    ~ViewsMenu();

    struct Items {
        QAction &graphs;
        QAction &grid;
        QAction &proxScan;
        QAction &numbers;
        QAction &statistics;
    };
    void connectItems(const Items &items);

    // The editing box may show another paragraph.
    void followEditor();

    // Those windows go that stand on none.
    void close();

private:
    // Made of the arguments beside the main window. What it says is wanted is shown in the editing
    // box.
    template <typename Window, typename... Arguments>
    Window &made(std::unique_ptr<Window> &window, Arguments &...arguments);
    void goTo(int n);
    void menuComGraphs_Click();
    void menuComGrid_Click();
    void menuComProxScan_Click();
    paraGrid &grid();
    void showNumbers();
    void menuComStatistics_Click();
    void showShades(const std::optional<GridShades> &shades);

    const Variables &m_variables;
    Prompts &m_prompts;
    Editor m_editor;
    QWidget &m_window;
    std::unique_ptr<paraGraphs> m_graphs;
    std::unique_ptr<paraGrid> m_grid;
    std::unique_ptr<proximityScan> m_proximityScan;
    std::unique_ptr<NumberWindow> m_numbers;
    std::unique_ptr<statisticsWindow> m_statistics;
};
