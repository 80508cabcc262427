#include "editor/references/ReferenceChoices.h"

#include "editor/FirstWords.h"
#include "editor/ParagraphSearch.h"
#include "platform/Ascii.h"
#include "richtext/FoldedText.h"
#include "store/Variables.h"

#include <algorithm>

namespace
{
bool isNumber(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isAsciiDigit);
}
} // namespace

ReferenceChoices::ReferenceChoices(const Variables &variables, QObject *parent)
    : QAbstractListModel(parent), m_variables(variables),
      m_firstFree(firstFree(variables, variables.CurrentParagraph).value_or(0))
{
    if (m_firstFree > 0)
        m_all.push_back(m_firstFree);
    for (int n = 1; n <= Variables::LastParagraph; ++n)
        if (variables.Written.at(n) == 1)
            m_all.push_back(n);
    m_shown = m_all;
}

void ReferenceChoices::narrow(const QString &typed)
{
    beginResetModel();
    m_shown.clear();
    const QString wanted = folded(typed.trimmed());
    std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(m_shown),
                 [&](int n) { return matches(n, wanted); });
    const int number = isNumber(wanted) ? wanted.toInt() : 0;
    const auto whole = std::find(m_shown.begin(), m_shown.end(), number);
    if (whole != m_shown.end())
        std::rotate(m_shown.begin(), whole, whole + 1);
    else if (number >= 1 && number <= Variables::LastParagraph)
        m_shown.insert(m_shown.begin(), number);
    endResetModel();
}

bool ReferenceChoices::matches(int n, const QString &typed) const
{
    if (typed.isEmpty())
        return true;
    return isNumber(typed) ? QString::number(n).startsWith(typed)
                           : folded(words(n)).contains(typed);
}

QString ReferenceChoices::words(int n) const
{
    if (m_variables.Written.at(n) == 0)
        return n == m_firstFree ? tr("premier numéro libre") : tr("encore vide");
    const auto known = m_words.constFind(n);
    return known != m_words.constEnd() ? *known : *m_words.insert(n, firstWords(m_variables, n));
}

int ReferenceChoices::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant ReferenceChoices::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    const int n = numberAt(index.row());
    return tr("%1 : %2").arg(QString::number(n), words(n));
}
