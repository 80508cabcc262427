#include "views/check/FindingList.h"

#include "views/check/FindingDelegate.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

FindingList::FindingList(QWidget *parent) : QTreeView(parent)
{
    setModel(&m_model);
    setItemDelegate(new FindingDelegate(m_model, this));
    setSelectionMode(ExtendedSelection);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setExpandsOnDoubleClick(false); // Enter and a double click do the same
    header()->setStretchLastSection(true);
    const int digits = fontMetrics().horizontalAdvance(QStringLiteral("Paragraphe 0"));
    header()->resizeSection(FindingModel::Number, digits + indentation());
    constexpr int sentence = 340; // pixels: most sentences
    header()->resizeSection(FindingModel::Sentence, sentence);
    connect(this, &QTreeView::activated, this, &FindingList::activate);
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex &group) {
        m_folded.insert(m_model.groups().at(group.row()).kind);
    });
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex &group) {
        m_folded.erase(m_model.groups().at(group.row()).kind);
    });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FindingList::choiceChanged);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FindingList::choiceChanged);
}

void FindingList::activate(const QModelIndex &index)
{
    if (FindingModel::isGroup(index)) {
        setExpanded(index, !isExpanded(index));
        return;
    }
    m_seen = seenAt(index);
    Q_EMIT wanted(Finding(m_model.at(index).finding)); // the list may change meanwhile
}

void FindingList::forget()
{
    m_folded.clear();
    m_seen.reset();
    setFindings({});
}

void FindingList::setFindings(QList<FindingGroup> groups)
{
    if (groups == m_model.groups()) {
        Q_EMIT choiceChanged();
        return;
    }
    const std::optional<Place> current = placeAt(currentIndex());
    const std::optional<Place> top = placeAt(indexAt({0, 0}));
    const int scrolled = verticalScrollBar()->value();
    std::set<Place> chosen;
    const QModelIndexList rows = selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        chosen.insert(placeOf(row));
    {
        const QSignalBlocker quiet(selectionModel());
        m_model.setGroups(std::move(groups));
        for (int group = 0; group < m_model.rowCount(); ++group) {
            setFirstColumnSpanned(group, {}, true);
            setExpanded(m_model.index(group, 0),
                        m_folded.count(m_model.groups().at(group).kind) == 0);
        }
    }
    if (m_model.rowCount() > 0)
        selectionModel()->setCurrentIndex(current ? indexAtOrBehind(*current)
                                                  : m_model.indexOf(0, 0),
                                          QItemSelectionModel::NoUpdate);
    choose(chosen);
    executeDelayedItemsLayout(); // nothing is scrolled before
    const QModelIndex first = top ? exactly(*top) : QModelIndex();
    if (first.isValid())
        scrollTo(first, PositionAtTop);
    else
        verticalScrollBar()->setValue(scrolled);
    Q_EMIT choiceChanged();
}

FindingList::Place FindingList::placeOf(const QModelIndex &index) const
{
    if (FindingModel::isGroup(index))
        return {{m_model.groups().at(index.row()).kind, -1, 0}, true};
    return {m_model.at(index).key(), false};
}

FindingList::Seen FindingList::seenAt(const QModelIndex &index) const
{
    const Place place = placeOf(index);
    const QList<ListedFinding> &findings = m_model.groups().at(index.parent().row()).findings;
    return {place, std::count_if(findings.begin(), findings.end(), [&](const ListedFinding &other) {
                return other.finding.number == place.key.number;
            })};
}

std::optional<FindingList::Place> FindingList::placeAt(const QModelIndex &index) const
{
    return index.isValid() ? std::optional(placeOf(index)) : std::nullopt;
}

// What has gone gives its place to the finding that follows it, or to the last.
QModelIndex FindingList::indexAtOrBehind(const Place &place) const
{
    const QList<FindingGroup> &groups = m_model.groups();
    const auto group = std::find_if(groups.begin(), groups.end(), [&](const FindingGroup &other) {
        return other.kind >= place.key.kind;
    });
    if (group == groups.end())
        return m_model.indexOf(groups.size() - 1, groups.last().findings.size() - 1);
    const qsizetype g = group - groups.begin();
    if (place.group)
        return group->kind == place.key.kind ? m_model.index(static_cast<int>(g), 0)
                                             : m_model.indexOf(g, 0);
    const auto finding =
        std::find_if(group->findings.begin(), group->findings.end(),
                     [&](const ListedFinding &other) { return !(other.key() < place.key); });
    if (finding != group->findings.end())
        return m_model.indexOf(g, finding - group->findings.begin());
    return g + 1 < groups.size() ? m_model.indexOf(g + 1, 0)
                                 : m_model.indexOf(g, group->findings.size() - 1);
}

QModelIndex FindingList::exactly(const Place &place) const
{
    const QModelIndex index = m_model.rowCount() > 0 ? indexAtOrBehind(place) : QModelIndex();
    return index.isValid() && placeOf(index) == place ? index : QModelIndex();
}

// Those that are left. When none is, the author goes on with the current one.
void FindingList::choose(const std::set<Place> &places)
{
    if (m_model.rowCount() == 0)
        return;
    QItemSelection selection;
    const auto take = [&](const QModelIndex &index) {
        if (places.count(placeOf(index)) == 0)
            return;
        const QModelIndex last = index.siblingAtColumn(FindingModel::Columns - 1);
        if (!selection.isEmpty() && selection.last().parent() == index.parent() &&
            selection.last().bottom() == index.row() - 1)
            selection.last() = QItemSelectionRange(selection.last().topLeft(), last);
        else
            selection.append(QItemSelectionRange(index, last));
    };
    for (int group = 0; group < m_model.rowCount(); ++group) {
        take(m_model.index(group, 0));
        for (qsizetype row = 0; row < m_model.groups().at(group).findings.size(); ++row)
            take(m_model.indexOf(group, row));
    }
    if (selection.isEmpty())
        selection.select(currentIndex(), currentIndex());
    selectionModel()->select(selection,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

QList<ListedFinding> FindingList::chosen() const
{
    QList<ListedFinding> chosen;
    for (int group = 0; group < m_model.rowCount(); ++group) {
        const QModelIndex parent = m_model.index(group, 0);
        const bool all = selectionModel()->isRowSelected(group, {});
        const QList<ListedFinding> &findings = m_model.groups().at(group).findings;
        for (int row = 0; row < findings.size(); ++row)
            if (all || selectionModel()->isRowSelected(row, parent))
                chosen.append(findings.at(row));
    }
    return chosen;
}

std::optional<Finding> FindingList::current() const
{
    const QModelIndex index = currentIndex();
    if (!index.isValid() || FindingModel::isGroup(index))
        return std::nullopt;
    return m_model.at(index).finding;
}

std::optional<Finding> FindingList::step(bool forward)
{
    if (m_model.rowCount() == 0)
        return std::nullopt;
    QModelIndex next = currentIndex();
    if (!forward || FindingModel::isGroup(next) || seenAt(next) == m_seen)
        next = neighbour(next, forward);
    selectionModel()->setCurrentIndex(next, QItemSelectionModel::ClearAndSelect |
                                                QItemSelectionModel::Rows);
    m_seen = seenAt(next);
    return current();
}

// Of a group, forward is its first finding.
QModelIndex FindingList::neighbour(const QModelIndex &from, bool forward) const
{
    const auto groups = m_model.rowCount();
    const auto findings = [this](int group) { return m_model.rowCount(m_model.index(group, 0)); };
    const bool isGroup = FindingModel::isGroup(from);
    const int group = isGroup ? from.row() : from.parent().row();
    const int row = (isGroup ? -1 : from.row()) + (forward ? 1 : -1);
    if (row >= findings(group))
        return m_model.indexOf((group + 1) % groups, 0);
    const int before = (group + groups - 1) % groups;
    return row >= 0 ? m_model.indexOf(group, row) : m_model.indexOf(before, findings(before) - 1);
}
