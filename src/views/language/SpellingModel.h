#pragma once

#include "language/spelling/BookSpelling.h"

#include <QAbstractTableModel>

// The doubtful words of a book: each with how often it occurs and where first.
class SpellingModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Word, Count, Places, Columns };

    using QAbstractTableModel::QAbstractTableModel;

    // By their letters, as they come; they are shown in the order chosen last.
    void setWords(const QList<DoubtfulWord> &words);

    const DoubtfulWord &at(int row) const { return m_words.at(row); }
    // -1: it is not there.
    int rowOf(const QString &word) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // By letters or by count; places have no order.
    void sort(int column, Qt::SortOrder order) override;

private:
    void arrange();

    QList<DoubtfulWord> m_byLetters;
    QList<DoubtfulWord> m_words;
    int m_column = Count;
    Qt::SortOrder m_order = Qt::DescendingOrder;
};
