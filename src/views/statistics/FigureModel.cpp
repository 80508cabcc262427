#include "views/statistics/FigureModel.h"

#include <algorithm>
#include <utility>

void FigureModel::setUp(const QStringList &columns, const std::function<QString(int)> &words)
{
    beginResetModel();
    m_columns = columns;
    m_words = words;
    endResetModel();
}

void FigureModel::setRows(QList<Row> rows)
{
    sortRows(rows);
    if (rows == m_rows) {
        if (!m_rows.isEmpty())
            Q_EMIT dataChanged(index(0, wordsColumn()), index(rowCount() - 1, wordsColumn()));
        return;
    }
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int FigureModel::rowOf(int number) const
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                  [number](const Row &r) { return r.number == number; });
    return row == m_rows.end() ? -1 : static_cast<int>(row - m_rows.begin());
}

int FigureModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int FigureModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant FigureModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return headerData(index.column(), Qt::Horizontal, role);
    if (role != Qt::DisplayRole)
        return {};
    const Row &row = m_rows.at(index.row());
    if (index.column() == 0)
        return row.number;
    return index.column() == wordsColumn() ? m_words(row.number)
                                           : row.cells.at(index.column() - 1).text;
}

QVariant FigureModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter |
                        (section == wordsColumn() ? Qt::AlignLeft : Qt::AlignRight));
    return role == Qt::DisplayRole ? m_columns.at(section) : QVariant();
}

void FigureModel::sort(int column, Qt::SortOrder order)
{
    m_sorted = column;
    m_order = order;
    beginResetModel();
    sortRows(m_rows);
    endResetModel();
}

// What is equal stays in the order of the numbers, either way round.
void FigureModel::sortRows(QList<Row> &rows) const
{
    const auto key = [this](const Row &row) {
        const double value = m_sorted == 0 ? row.number : row.cells.at(m_sorted - 1).key;
        return std::pair(m_order == Qt::AscendingOrder ? value : -value, row.number);
    };
    std::sort(rows.begin(), rows.end(),
              [&key](const Row &a, const Row &b) { return key(a) < key(b); });
}
