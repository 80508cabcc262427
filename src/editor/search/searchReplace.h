#pragma once

#include "editor/EditorAccess.h"
#include "editor/search/MatchWindow.h"
#include "widgets/WorkInDialog.h"

#include <QDialog>
#include <memory>

namespace Ui
{
class searchReplace;
}

// Searches and replaces, from a window that stays open beside the editing box and keeps its fields
// while the program runs.
class searchReplace : public QDialog
{
    Q_OBJECT

public:
    searchReplace(Variables &variables, Prompts &prompts, WorkReport &report,
                  const EditorAccess &editor, QWidget *parent);
    ~searchReplace() override;

    // Comes to the front, ready for a search text. The search begins at the top of the current
    // paragraph, unless the match found last is still selected.
    void Form_Activate();

    // Repeats the search; without a search text the window comes for one.
    void searchAgain();

    // The text in the editing box was changed: what was counted is so no more.
    void forgetCount();

Q_SIGNALS:
    // The author has gone from here, or from the list, to another window.
    void left();

protected:
    bool event(QEvent *event) override;

private:
    void connectControls();
    void connectCount();
    void run(void (searchReplace::*handler)());
    void txtSearch_Change();
    void Suivant_Click();
    void Remplacer_Click();
    void RemplacerTous_Click();
    void Fermer_Click();
    void countAll();
    void listAll_Click();
    void showListed(const ListedMatch &match);
    void replaceListed();

    SearchFor wanted() const;
    SearchCommands::Where where() const;
    void forgetMatch();
    bool matchIsSelected() const;
    void setFound(int position);
    bool SearchFollowingParagraphs();
    void revealMatch();

    const Variables &m_variables;
    Prompts &m_prompts;
    EditorAccess m_editor;
    std::unique_ptr<Ui::searchReplace> m_ui;
    WorkInDialog m_work;
    SearchCommands m_commands;
    MatchWindow m_list;
    bool m_lastFound = false; // the last search found a match
    int m_lastPos = -1;       // and where in the box
    int m_paragraph = -1;     // of the last search
};
