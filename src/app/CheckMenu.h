#pragma once

#include "check/GrammarCheck.h"
#include "check/LiveCheck.h"
#include "editor/EditorAccess.h"

#include <QCoreApplication>
#include <memory>

class Prompts;
class QAction;
class QPushButton;
class QStatusBar;
class QWidget;
class WorkReport;
class bookCheck;

// The check of the book: its entries of the menu "Fonctions", what the status line says of it, and
// what its window asks for. It owns the check and that window, which is made when it is first
// wanted.
class CheckMenu
{
    Q_DECLARE_TR_FUNCTIONS(CheckMenu)

public:
    // window is the one that the list stands beside; all of these must outlive it.
    CheckMenu(Variables &variables, Prompts &prompts, WorkReport &report,
              const EditorAccess &editor, QWidget &window);
    ~CheckMenu();

    struct Items {
        QAction &check;
        QAction &next;
        QAction &previous;
        QStatusBar &statusBar;
    };
    void connectItems(const Items &items);

private:
    void addToStatusBar(QStatusBar &bar, QAction &check);
    void showCounts(QStatusBar &bar, QPushButton &button) const;
    void shareKeys(const Items &items, bool listIsOpen) const;
    bookCheck &list(const Items &items);
    void connectList(const Items &items);
    void showList(const Items &items);
    void step(bool forward);
    void goTo(const Finding &finding);
    void accept(const QList<Finding> &findings, bool accept);
    void mend(const QList<Finding> &findings, int mend);
    void setStarts(const QList<int> &starts);

    Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    EditorAccess m_editor;
    QWidget &m_window;
    LiveCheck m_check;
    GrammarCheck m_grammar;
    std::unique_ptr<bookCheck> m_list;
};
