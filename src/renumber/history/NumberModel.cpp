#include "renumber/history/NumberModel.h"

#include <QStringList>
#include <algorithm>
#include <utility>

namespace
{
QVariant alignment(int column)
{
    return QVariant(Qt::AlignVCenter |
                    (column == NumberModel::Words ? Qt::AlignLeft : Qt::AlignRight));
}
} // namespace

NumberModel::NumberModel(std::function<QString(int)> words) : m_words(std::move(words)) {}

void NumberModel::setRows(QList<NumberRow> rows)
{
    sortRows(rows);
    if (rows == m_rows) {
        if (!m_rows.isEmpty())
            Q_EMIT dataChanged(index(0, Words), index(rowCount() - 1, Words));
        return;
    }
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

QList<int> NumberModel::rowsOf(int number) const
{
    QList<int> found;
    for (const auto column : {&NumberRow::before, &NumberRow::after})
        for (int row = 0; row < rowCount(); ++row)
            if (m_rows.at(row).*column == number && !found.contains(row))
                found.append(row);
    return found;
}

QString NumberModel::whatBecameOf(int number) const
{
    QStringList told;
    const QList<int> found = rowsOf(number);
    for (const int i : found) {
        const NumberRow &row = m_rows.at(i);
        if (row.before == row.after)
            return tr("Le %1 est resté le %1.").arg(number);
        told.append(row.before == number
                        ? tr("L'ancien %1 est devenu le %2.").arg(number).arg(row.after)
                        : tr("Le nouveau %1 était le %2.").arg(number).arg(row.before));
    }
    return told.isEmpty() ? tr("Aucun paragraphe écrit n'a ou n'avait le numéro %1.").arg(number)
                          : told.join(u' ');
}

QString NumberModel::text(const QList<int> &rows) const
{
    QStringList lines;
    for (const int row : rows) {
        QStringList columns;
        for (int column = 0; column < Columns; ++column)
            columns.append(data(index(row, column), Qt::DisplayRole).toString());
        lines.append(columns.join(u'\t'));
    }
    return lines.join(u'\n');
}

int NumberModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int NumberModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QVariant NumberModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return alignment(index.column());
    if (role != Qt::DisplayRole)
        return {};
    const NumberRow &row = m_rows.at(index.row());
    switch (index.column()) {
    case Before:
        return row.before;
    case After:
        return row.after;
    default:
        return m_words(row.now);
    }
}

QVariant NumberModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return alignment(section);
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return numberTableHead().at(section);
}

void NumberModel::sort(int column, Qt::SortOrder order)
{
    if (column != Before && column != After)
        return;
    m_sorted = static_cast<Column>(column);
    m_order = order;
    beginResetModel();
    sortRows(m_rows);
    endResetModel();
}

void NumberModel::sortRows(QList<NumberRow> &rows) const
{
    const auto number = m_sorted == Before ? &NumberRow::before : &NumberRow::after;
    std::sort(rows.begin(), rows.end(), [&](const NumberRow &a, const NumberRow &b) {
        return m_order == Qt::AscendingOrder ? a.*number < b.*number : b.*number < a.*number;
    });
}
