#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>

// A table of paragraphs: the number, some figures, and the first words, which are asked for when
// they are shown. All but the words can be sorted by.
class FigureModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    struct Cell {
        double key; // sorted by this
        QString text;
        bool operator==(const Cell &) const = default;
    };
    struct Row {
        int number;
        QList<Cell> cells;
        bool operator==(const Row &) const = default;
    };

    // What the columns are called, the first and the last included, and what gives a paragraph's
    // first words.
    void setUp(const QStringList &columns, const std::function<QString(int)> &words);

    // Other rows take their place, in the same order; or the same rows may have other words.
    void setRows(QList<Row> rows);

    int numberAt(int row) const { return m_rows.at(row).number; }
    // -1 when it has none.
    int rowOf(int number) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    void sortRows(QList<Row> &rows) const;
    int wordsColumn() const { return columnCount() - 1; }

    QStringList m_columns;
    std::function<QString(int)> m_words;
    QList<Row> m_rows;
    int m_sorted = 0;
    Qt::SortOrder m_order = Qt::AscendingOrder;
};
