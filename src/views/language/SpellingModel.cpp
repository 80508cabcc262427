#include "views/language/SpellingModel.h"

#include <algorithm>

void SpellingModel::setWords(const QList<DoubtfulWord> &words)
{
    beginResetModel();
    m_byLetters = words;
    arrange();
    endResetModel();
}

// Words as frequent as one another stay in the order of their letters.
void SpellingModel::arrange()
{
    m_words = m_byLetters;
    const bool descending = m_order == Qt::DescendingOrder;
    if (m_column == Count)
        std::stable_sort(m_words.begin(), m_words.end(),
                         [descending](const DoubtfulWord &a, const DoubtfulWord &b) {
                             return descending ? a.places.size() > b.places.size()
                                               : a.places.size() < b.places.size();
                         });
    else if (descending)
        std::reverse(m_words.begin(), m_words.end());
}

void SpellingModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    m_column = column;
    m_order = order;
    arrange();
    endResetModel();
}

int SpellingModel::rowOf(const QString &word) const
{
    const auto row = std::find_if(m_words.begin(), m_words.end(),
                                  [&word](const DoubtfulWord &one) { return one.word == word; });
    return row == m_words.end() ? -1 : static_cast<int>(row - m_words.begin());
}

int SpellingModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_words.size());
}

int SpellingModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QVariant SpellingModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return headerData(index.column(), Qt::Horizontal, role);
    if (role != Qt::DisplayRole)
        return {};
    const DoubtfulWord &word = m_words.at(index.row());
    switch (index.column()) {
    case Word:
        return word.word;
    case Count:
        return static_cast<int>(word.places.size());
    default:
        return firstNumbers(word);
    }
}

QVariant SpellingModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (section == Count ? Qt::AlignRight : Qt::AlignLeft));
    if (role != Qt::DisplayRole)
        return {};
    return section == Word ? tr("Mot") : section == Count ? tr("Nombre") : tr("Paragraphes");
}
