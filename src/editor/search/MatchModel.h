#pragma once

#include "editor/search/SearchCommands.h"

#include <QAbstractListModel>

// The lines of the list of matches, in the order of the adventure.
class MatchModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void clear();
    void append(const QList<MatchLine> &lines);
    // The lines of paragraph n are these from now on.
    void replaceParagraph(int n, const QList<MatchLine> &lines);

    const MatchLine &line(int row) const { return m_lines.at(row); }
    int count() const { return static_cast<int>(m_lines.size()); }

    int rowCount(const QModelIndex &parent) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void insert(int row, const QList<MatchLine> &lines);

    QList<MatchLine> m_lines;
};
