#include "views/check/FindingModel.h"

#include <utility>

void FindingModel::setGroups(QList<FindingGroup> groups)
{
    beginResetModel();
    m_groups = std::move(groups);
    endResetModel();
}

void FindingModel::renumber(const NumberMap &numbers)
{
    for (qsizetype group = 0; group < m_groups.size(); ++group) {
        QList<ListedFinding> &findings = m_groups[group].findings;
        for (ListedFinding &listed : findings)
            listed.finding.number = numbers.at(listed.finding.number);
        Q_EMIT dataChanged(indexOf(group, 0), indexOf(group, findings.size() - 1));
    }
}

const ListedFinding &FindingModel::at(const QModelIndex &index) const
{
    return m_groups.at(static_cast<qsizetype>(index.internalId()) - 1).findings.at(index.row());
}

QModelIndex FindingModel::indexOf(qsizetype group, qsizetype row) const
{
    return createIndex(static_cast<int>(row), 0, static_cast<quintptr>(group) + 1);
}

// A group has the id 0; a finding that of its group, from 1 on.
QModelIndex FindingModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : quintptr{0});
}

QModelIndex FindingModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || isGroup(child))
        return {};
    return createIndex(static_cast<int>(child.internalId()) - 1, 0, quintptr{0});
}

int FindingModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_groups.size());
    if (!isGroup(parent) || parent.column() > 0)
        return 0;
    return static_cast<int>(m_groups.at(parent.row()).findings.size());
}

int FindingModel::columnCount(const QModelIndex & /*parent*/) const
{
    return Columns;
}

QVariant FindingModel::data(const QModelIndex &index, int role) const
{
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    if (!isText)
        return {};
    if (isGroup(index))
        return index.column() == 0 ? groupTitle(m_groups.at(index.row())) : QVariant();
    const Finding &finding = at(index).finding;
    switch (index.column()) {
    case Number:
        return finding.number;
    case Sentence:
        return finding.sentence();
    default:
        return finding.around;
    }
}

QVariant FindingModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return QStringList{tr("Paragraphe"), tr("Constat"), tr("Texte")}.at(section);
}
