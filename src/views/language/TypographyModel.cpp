#include "views/language/TypographyModel.h"

#include "views/language/TypographyWords.h"

#include <algorithm>
#include <utility>

void TypographyModel::setGroups(QList<TypographyGroup> groups)
{
    beginResetModel();
    m_groups = std::move(groups);
    showAgain();
    countAgain();
    endResetModel();
    Q_EMIT chosenChanged();
}

void TypographyModel::show(std::optional<TypographyKind> kind)
{
    if (kind == m_kind)
        return;
    beginResetModel();
    m_kind = kind;
    showAgain();
    endResetModel();
}

void TypographyModel::showAgain()
{
    m_shown.clear();
    for (qsizetype group = 0; group < m_groups.size(); ++group) {
        Shown shown{group, {}};
        const QList<TypographyPlace> &places = m_groups.at(group).places;
        for (qsizetype place = 0; place < places.size(); ++place)
            if (!m_kind || places.at(place).mend.kind == *m_kind)
                shown.places.append(place);
        if (!shown.places.isEmpty())
            m_shown.append(shown);
    }
}

void TypographyModel::countAgain()
{
    m_counts.fill({});
    for (const TypographyGroup &group : std::as_const(m_groups)) {
        for (const TypographyPlace &place : group.places) {
            Count &count = m_counts.at(indexOf(place.mend.kind));
            ++count.all;
            count.chosen += place.chosen ? 1 : 0;
        }
    }
}

void TypographyModel::choose(TypographyKind kind, bool chosen)
{
    for (TypographyGroup &group : m_groups)
        for (TypographyPlace &place : group.places)
            if (place.mend.kind == kind)
                place.chosen = chosen;
    countAgain();
    for (int row = 0; row < m_shown.size(); ++row) {
        const QModelIndex group = index(row, 0);
        Q_EMIT dataChanged(group, group);
        Q_EMIT dataChanged(index(0, 0, group), index(rowCount(group) - 1, 0, group));
    }
    Q_EMIT chosenChanged();
}

int TypographyModel::chosenCount() const
{
    int chosen = 0;
    for (const Count &count : m_counts)
        chosen += count.chosen;
    return chosen;
}

int TypographyModel::shownCount() const
{
    int shown = 0;
    for (const Shown &group : m_shown)
        shown += static_cast<int>(group.places.size());
    return shown;
}

TypographyCommands::Looks TypographyModel::chosen() const
{
    TypographyCommands::Looks looks;
    for (const TypographyGroup &group : m_groups) {
        TypographyLook look{group.textSum, {}};
        for (const TypographyPlace &place : group.places)
            if (place.chosen)
                look.mends.append(place.mend);
        if (!look.mends.isEmpty())
            looks.emplace(group.number, look);
    }
    return looks;
}

const TypographyModel::Shown &TypographyModel::shownAt(const QModelIndex &index) const
{
    return m_shown.at(isGroup(index) ? index.row()
                                     : static_cast<qsizetype>(index.internalId()) - 1);
}

const TypographyGroup &TypographyModel::groupAt(const QModelIndex &index) const
{
    return m_groups.at(shownAt(index).group);
}

const TypographyPlace &TypographyModel::placeAt(const QModelIndex &index) const
{
    return groupAt(index).places.at(shownAt(index).places.at(index.row()));
}

// A paragraph has the id 0; a place that of its paragraph, from 1 on.
QModelIndex TypographyModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : quintptr{0});
}

QModelIndex TypographyModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || isGroup(child))
        return {};
    return createIndex(static_cast<int>(child.internalId()) - 1, 0, quintptr{0});
}

int TypographyModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_shown.size());
    if (!isGroup(parent) || parent.column() > 0)
        return 0;
    return static_cast<int>(shownAt(parent).places.size());
}

int TypographyModel::columnCount(const QModelIndex & /*parent*/) const
{
    return Columns;
}

Qt::ItemFlags TypographyModel::flags(const QModelIndex &index) const
{
    return QAbstractItemModel::flags(index) |
           (index.column() == What ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

Qt::CheckState TypographyModel::checkOf(const QModelIndex &index) const
{
    if (!isGroup(index))
        return placeAt(index).chosen ? Qt::Checked : Qt::Unchecked;
    const Shown &shown = shownAt(index);
    const QList<TypographyPlace> &places = m_groups.at(shown.group).places;
    const auto chosen = std::count_if(shown.places.begin(), shown.places.end(),
                                      [&](qsizetype place) { return places.at(place).chosen; });
    if (chosen == 0)
        return Qt::Unchecked;
    return chosen == shown.places.size() ? Qt::Checked : Qt::PartiallyChecked;
}

QString TypographyModel::textOf(const QModelIndex &index) const
{
    if (isGroup(index))
        return index.column() == What
                   ? tr("Paragraphe %1 (%2)").arg(groupAt(index).number).arg(rowCount(index))
                   : QString();
    const TypographyMend &mend = placeAt(index).mend;
    switch (index.column()) {
    case What:
        return typographyKindTitle(mend.kind);
    case Before:
        return wordsBefore(groupAt(index).text, mend).text;
    default:
        return wordsAfter(groupAt(index).text, mend).text;
    }
}

QVariant TypographyModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::CheckStateRole && index.column() == What)
        return checkOf(index);
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return textOf(index);
    return {};
}

bool TypographyModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != What)
        return false;
    const bool chosen = value.toInt() == Qt::Checked;
    const Shown &shown = shownAt(index);
    QList<TypographyPlace> &places = m_groups[shown.group].places;
    const QModelIndex group = isGroup(index) ? index : index.parent();
    if (isGroup(index))
        for (const qsizetype place : shown.places)
            places[place].chosen = chosen;
    else
        places[shown.places.at(index.row())].chosen = chosen;
    countAgain();
    Q_EMIT dataChanged(group, group);
    Q_EMIT dataChanged(this->index(0, 0, group), this->index(rowCount(group) - 1, 0, group));
    Q_EMIT chosenChanged();
    return true;
}

QVariant TypographyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return QStringList{tr("À changer"), tr("Avant"), tr("Après")}.at(section);
}
