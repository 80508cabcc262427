#pragma once

#include "renumber/history/NumberTable.h"

#include <QAbstractTableModel>

// The rows of the table of numbers, in the order in which the author wants them. The words of a row
// are asked for when they are shown.
class NumberModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Before, After, Words, Columns };

    // words gives the first words of the paragraph that has this number now.
    explicit NumberModel(std::function<QString(int)> words);

    // Other rows take their place, in the same order; or the same rows may have other words.
    void setRows(QList<NumberRow> rows);
    const QList<NumberRow> &rows() const { return m_rows; }

    // The rows with this number: the one that had it before first, then the one that has it after.
    QList<int> rowsOf(int number) const;

    // What these rows say of the number, in a sentence or two.
    QString whatBecameOf(int number) const;

    // The rows with tabs between the columns and line feeds between them.
    QString text(const QList<int> &rows) const;

    QByteArray csv() const { return numberCsv(m_rows, m_words); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // By number, of the columns that have one.
    void sort(int column, Qt::SortOrder order) override;

private:
    void sortRows(QList<NumberRow> &rows) const;

    const std::function<QString(int)> m_words;
    QList<NumberRow> m_rows;
    Column m_sorted = After;
    Qt::SortOrder m_order = Qt::AscendingOrder;
};
