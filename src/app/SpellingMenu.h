#pragma once

#include "editor/EditorAccess.h"
#include "language/spelling/Spelling.h"

#include <QCoreApplication>
#include <memory>

class ComfortKeeper;
class Prompts;
class QAction;
class QWidget;
class ReferenceUnderlines;
class RtfBox;
class WorkReport;
class bookSpelling;
struct SpellingChange;
struct WordPlace;

// Spelling in the main window: what helps with it while writing, the entries of the menus, and what
// the list of doubtful words asks for. It owns the spelling and that window, which is made when it
// is first wanted.
class SpellingMenu
{
    Q_DECLARE_TR_FUNCTIONS(SpellingMenu)

public:
    // window is the one that the list stands beside; all of these must outlive it.
    SpellingMenu(Variables &variables, Prompts &prompts, WorkReport &report, ComfortKeeper &comfort,
                 const EditorAccess &editor, QWidget &window);
    ~SpellingMenu();

    struct Items {
        QAction &book;
        QAction &whileTyping; // checked while doubtful words are underlined
    };
    void connectItems(const Items &items);

    // The box of the window, with what is underlined in it for its references.
    void connectBox(RtfBox &box, const ReferenceUnderlines &references);

private:
    bookSpelling &list();
    void showList();
    void goTo(const WordPlace &place, const QString &word);
    void replace(const SpellingChange &change);

    Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    ComfortKeeper &m_comfort;
    EditorAccess m_editor;
    QWidget &m_window;
    Spelling m_spelling;
    std::unique_ptr<bookSpelling> m_list;
};
