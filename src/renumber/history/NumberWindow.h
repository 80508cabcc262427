#pragma once

#include "platform/Prompts.h"
#include "renumber/history/NumberModel.h"
#include "store/Variables.h"

#include <QDialog>
#include <memory>

class QComboBox;

namespace Ui
{
class NumberWindow;
}

// The old and the new number of every written paragraph, between two points of the history. It
// stays open beside the editing box and follows the adventure.
class NumberWindow : public QDialog
{
    Q_OBJECT

public:
    // words gives the first words of the paragraph that has this number now.
    NumberWindow(const Variables &variables, Prompts &prompts,
                 const std::function<QString(int)> &words, QWidget *parent);
    ~NumberWindow() override;

    // The author begins in the table.
    void focusTable();

Q_SIGNALS:
    // He wants to see this paragraph in the editing box.
    void wanted(int n);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void setUpTable();
    void connectControls();
    void followAdventure();
    void refresh();
    void fill();
    void fillPoints(QComboBox &box) const;
    qsizetype point(const QComboBox &box) const;
    void beginAnew();
    void sort();
    void sortBySection(int section);
    QList<int> rowsFound() const;
    void find();
    void findNext();
    void copy();
    void save();
    void showState();
    void select(int row);
    // The number that the paragraph of the current row has now; 0 without one.
    int currentNumber() const;
    void keepCurrent(int n, const std::function<void()> &change);

    const Variables &m_variables;
    Prompts &m_prompts;
    std::unique_ptr<Ui::NumberWindow> m_ui;
    NumberModel m_model;
};
