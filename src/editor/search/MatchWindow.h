#pragma once

#include "editor/search/MatchFinder.h"
#include "editor/search/MatchModel.h"

#include <QDialog>
#include <QTimer>
#include <memory>
#include <optional>

namespace Ui
{
class MatchWindow;
}

// The list of all matches. It stays open beside the editing box, fills while the author reads it,
// and follows the texts as they change.
class MatchWindow : public QDialog
{
    Q_OBJECT

public:
    MatchWindow(const Variables &variables, SearchCommands &commands, QWidget *parent);
    ~MatchWindow() override;

    // Comes to the front and begins to list what the finder finds, in one paragraph alone or in all
    // of them.
    void list(const MatchFinder &finder, std::optional<int> paragraph);

    // Of the list that is shown.
    const MatchFinder &finder() const { return *m_finder; }
    QList<ListedMatch> chosen() const;

Q_SIGNALS:
    // The author wants to see it in the editing box.
    void wanted(const ListedMatch &match);
    // He wants the chosen ones replaced.
    void replaceWanted();
    // He has gone to another window.
    void left();

protected:
    bool event(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void follow();
    void fill();
    int lastToFill() const { return m_only.value_or(m_variables.HighestWritten); }
    void fillSome();
    void append(const QList<MatchLine> &lines);
    void relist(int n);
    void showCount();

    const Variables &m_variables;
    SearchCommands &m_commands;
    std::unique_ptr<Ui::MatchWindow> m_ui;
    MatchModel m_model;
    std::optional<MatchFinder> m_finder; // while there is a list
    std::optional<int> m_only;           // the paragraph that is listed alone
    int m_next = 0;                      // the one that the filling has come to
    QList<int> m_unreadable;             // of the paragraphs listed so far
    QTimer m_filling;
};
