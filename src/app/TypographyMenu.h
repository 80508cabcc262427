#pragma once

#include "editor/EditorAccess.h"
#include "editor/language/TypographyCommands.h"

#include <QCoreApplication>
#include <memory>

class ComfortKeeper;
class Prompts;
class QAction;
class QWidget;
class bookTypography;

// The typography of the book: its entry of the menu "Fonctions", and what its window asks for. It
// owns that window, which is made when it is first wanted.
class TypographyMenu
{
    Q_DECLARE_TR_FUNCTIONS(TypographyMenu)

public:
    struct Author {
        Prompts &prompts;
        WorkReport &report;
        ComfortKeeper &comfort;
    };
    // window is the one that the list stands beside; all of these must outlive it.
    TypographyMenu(Variables &variables, const Author &author, const EditorAccess &editor,
                   QWidget &window);
    ~TypographyMenu();

    void connectItem(QAction &item);

private:
    void showWindow();
    void goTo(int paragraph, const TypographyMend &mend);
    void apply();

    Variables &m_variables;
    Author m_author;
    EditorAccess m_editor;
    QWidget &m_window;
    TypographyCommands m_commands;
    std::unique_ptr<bookTypography> m_list;
};
