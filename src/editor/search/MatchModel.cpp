#include "editor/search/MatchModel.h"

#include <algorithm>

void MatchModel::clear()
{
    beginResetModel();
    m_lines.clear();
    endResetModel();
}

void MatchModel::append(const QList<MatchLine> &lines)
{
    insert(count(), lines);
}

void MatchModel::insert(int row, const QList<MatchLine> &lines)
{
    if (lines.isEmpty())
        return;
    beginInsertRows({}, row, row + static_cast<int>(lines.size()) - 1);
    if (row == count())
        m_lines += lines;
    else
        m_lines = m_lines.mid(0, row) + lines + m_lines.mid(row);
    endInsertRows();
}

void MatchModel::replaceParagraph(int n, const QList<MatchLine> &lines)
{
    const auto first = std::find_if(m_lines.cbegin(), m_lines.cend(), [n](const MatchLine &line) {
        return line.match.paragraph >= n;
    });
    const auto last = std::find_if(first, m_lines.cend(),
                                   [n](const MatchLine &line) { return line.match.paragraph > n; });
    const auto row = static_cast<int>(first - m_lines.cbegin());
    if (first != last) {
        beginRemoveRows({}, row, static_cast<int>(last - m_lines.cbegin()) - 1);
        m_lines.erase(first, last);
        endRemoveRows();
    }
    insert(row, lines);
}

int MatchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant MatchModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
        return {};
    const MatchLine &line = m_lines.at(index.row());
    return tr("%1, caractère %2 : %3")
        .arg(line.match.paragraph)
        .arg(line.match.position)
        .arg(line.words);
}
