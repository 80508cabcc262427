#pragma once

#include "store/Variables.h"
#include "views/statistics/FigureModel.h"

#include <QWidget>

class QComboBox;
class QTreeView;

// A FigureModel on the screen, with a box that sorts it, which a click on a column's name does as
// well.
class FigureTable : public QWidget
{
    Q_OBJECT

public:
    explicit FigureTable(QWidget *parent = nullptr);

    // See FigureModel::setUp. name is what a screen reader calls the table, tip what a click does.
    void setUp(const QStringList &columns, const std::function<QString(int)> &words,
               const QString &name, const QString &tip);

    // The current paragraph stays the current one.
    void setRows(const QList<FigureModel::Row> &rows);

    // Paragraphs have other numbers; the rows are still to come.
    void renumber(const NumberMap &newNumbers) { m_current = newNumbers.at(m_current); }

Q_SIGNALS:
    void clicked(int number);
    // 0: none.
    void currentChanged(int number);
    // By a double click or Enter.
    void activated(int number);

private:
    void sort(int entry);
    void sortBySection(int section);
    void keepCurrent(const std::function<void()> &change);

    FigureModel m_model;
    QComboBox *m_sortBox;
    QTreeView *m_view;
    int m_current = 0; // the paragraph on the current row, 0: none
};
