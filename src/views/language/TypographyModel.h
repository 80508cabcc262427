#pragma once

#include "editor/language/TypographyCommands.h"

#include <QAbstractItemModel>
#include <array>
#include <optional>

// A place that would change, and whether the author wants it.
struct TypographyPlace {
    TypographyMend mend;
    bool chosen = true;
};

// Those of a paragraph, and the text that they were found in.
struct TypographyGroup {
    int number;
    QString text;
    QByteArray textSum;
    QList<TypographyPlace> places;
};

// The list of what would change: paragraphs, and the places in them. All places, or those of one
// kind, can be seen and chosen with their boxes; that of a paragraph chooses what is seen of it.
class TypographyModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { What, Before, After, Columns };

    using QAbstractItemModel::QAbstractItemModel;

    void setGroups(QList<TypographyGroup> groups);
    const QList<TypographyGroup> &groups() const { return m_groups; }
    // Nothing: all kinds.
    void show(std::optional<TypographyKind> kind);
    void choose(TypographyKind kind, bool chosen);

    struct Count {
        int all = 0;
        int chosen = 0;
    };
    Count count(TypographyKind kind) const { return m_counts.at(indexOf(kind)); }
    int chosenCount() const;
    int shownCount() const;
    TypographyCommands::Looks chosen() const;

    static bool isGroup(const QModelIndex &index)
    {
        return index.isValid() && index.internalId() == 0;
    }
    // Of any index, and of one that is no group.
    const TypographyGroup &groupAt(const QModelIndex &index) const;
    const TypographyPlace &placeAt(const QModelIndex &index) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void chosenChanged();

private:
    // What is seen of a group.
    struct Shown {
        qsizetype group;
        QList<qsizetype> places;
    };
    void showAgain();
    void countAgain();
    const Shown &shownAt(const QModelIndex &index) const;
    Qt::CheckState checkOf(const QModelIndex &index) const;
    QString textOf(const QModelIndex &index) const;

    QList<TypographyGroup> m_groups; // ascending
    QList<Shown> m_shown;
    std::optional<TypographyKind> m_kind;
    std::array<Count, TypographyKindCount> m_counts{};
};
