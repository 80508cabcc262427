#pragma once

#include "store/CommandHistory.h"

#include <QDialog>
#include <memory>

namespace Ui
{
class HistoryWindow;
}

// The commands on the whole adventure since it was opened, the newest first, those that were taken
// back above. It stays open beside the editing box and follows the history; it changes nothing
// itself.
class HistoryWindow : public QDialog
{
    Q_OBJECT

public:
    HistoryWindow(const Variables &variables, QWidget *parent);
    ~HistoryWindow() override;

    // The author begins in the list, at the newest command that is done.
    void focusList();

Q_SIGNALS:
    // He wants this command taken back with all that came after it,
    void takeBackWanted(int id);
    // or done once more with all that came before it,
    void redoWanted(int id);
    // or to see the numbers.
    void tableWanted();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void refresh();
    void fill();
    void add(const CommandHistory::Command &command, bool undone);
    void choose(int fromBelow);
    void showChoice();
    QString choiceText(const CommandHistory::Command &command, bool undone) const;
    int chosenId() const;
    int rowFromBelow() const;

    const Variables &m_variables;
    std::unique_ptr<Ui::HistoryWindow> m_ui;
};
