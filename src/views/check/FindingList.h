#pragma once

#include "views/check/FindingModel.h"

#include <QTreeView>
#include <optional>
#include <set>
#include <tuple>

// The list of findings on the screen. What the author has chosen, folded and scrolled to stays when
// other findings take the place of these.
class FindingList : public QTreeView
{
    Q_OBJECT

public:
    explicit FindingList(QWidget *parent = nullptr);

    void setFindings(QList<FindingGroup> groups);
    const QList<FindingGroup> &groups() const { return m_model.groups(); }

    // See FindingModel.
    void renumber(const NumberMap &numbers) { m_model.renumber(numbers); }

    // Nothing is chosen or folded any more.
    void forget();

    // Those that are chosen, in the order of the list; of a chosen group, all.
    QList<ListedFinding> chosen() const;

    // The current one; none on a group.
    std::optional<Finding> current() const;

    // Makes the finding behind the one that was last to be seen the current one, or the one before
    // it, and goes round at the end. A current one that is still to be seen is the next itself.
    // Nothing when there is none.
    std::optional<Finding> step(bool forward);

Q_SIGNALS:
    // The author wants to see it in the text.
    void wanted(const Finding &finding);
    void choiceChanged();

private:
    // What is chosen: a finding, or a group by itself.
    struct Place {
        FindingKey key;
        bool group;
        bool operator==(const Place &) const = default;
        bool operator<(const Place &other) const
        {
            return std::tie(key, group) < std::tie(other.key, other.group);
        }
    };
    // The finding that was shown in the text last. When those of its kind in its paragraph become
    // fewer, it may be the one that has gone.
    struct Seen {
        Place place;
        qsizetype alike;
        bool operator==(const Seen &) const = default;
    };
    Place placeOf(const QModelIndex &index) const;
    Seen seenAt(const QModelIndex &index) const;
    std::optional<Place> placeAt(const QModelIndex &index) const;
    QModelIndex indexAtOrBehind(const Place &place) const;
    QModelIndex exactly(const Place &place) const;
    void choose(const std::set<Place> &places);
    QModelIndex neighbour(const QModelIndex &from, bool forward) const;
    void activate(const QModelIndex &index);

    FindingModel m_model;
    std::optional<Seen> m_seen;
    std::set<FindingKind> m_folded;
};
