#pragma once

#include "check/FindingGroups.h"
#include "store/HistoryStep.h"

#include <QAbstractItemModel>

// The groups of a list of findings, and the findings in them.
class FindingModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { Number, Sentence, Words, Columns };

    using QAbstractItemModel::QAbstractItemModel;

    void setGroups(QList<FindingGroup> groups);
    const QList<FindingGroup> &groups() const { return m_groups; }

    // The findings are of the paragraphs that have these numbers from now on.
    void renumber(const NumberMap &numbers);

    static bool isGroup(const QModelIndex &index)
    {
        return index.isValid() && index.internalId() == 0;
    }
    // Of an index that is no group.
    const ListedFinding &at(const QModelIndex &index) const;
    QModelIndex indexOf(qsizetype group, qsizetype row) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<FindingGroup> m_groups;
};
