#pragma once

#include "editor/helpWindow.h"

#include <QCoreApplication>

class EditorView;
class Prompts;
class QAction;

// The commands of the menu "Aide", with the window of the help.
class InfoMenu
{
    Q_DECLARE_TR_FUNCTIONS(InfoMenu)

public:
    InfoMenu(const Variables &variables, Prompts &prompts, EditorView &view);

    struct Items {
        QAction &aide;
        QAction &help;
        QAction &about;
    };
    void connectItems(const Items &items);
    void closeHelp() { m_help.close(); }

private:
    void menuInfoAbout_Click();

    Prompts &m_prompts;
    EditorView &m_view;
    helpWindow m_help;
};
