#include "views/check/FindingDelegate.h"

#include "views/check/FindingModel.h"
#include "widgets/Shade.h"

#include <algorithm>

namespace
{
constexpr double Faint = 0.68;   // of the text's colour: lighter, and still easy to read
constexpr qsizetype Before = 24; // characters of the sentence that stand before the place

// The words around the place, cut at the start so that a narrow column shows the place too.
BoldWords wordsAround(const Finding &finding)
{
    QString text = finding.around;
    text.replace(u'\t', u' ');
    qsizetype place = std::min(finding.placeInAround, text.size());
    const qsizetype blank = place > Before ? text.indexOf(u' ', place - Before) : -1;
    if (blank >= 0 && blank < place) {
        text = u'…' + text.mid(blank + 1);
        place -= blank;
    }
    return {text, static_cast<int>(place), static_cast<int>(finding.length)};
}
} // namespace

FindingDelegate::FindingDelegate(const FindingModel &model, QObject *parent)
    : WordsDelegate(parent), m_model(model)
{
}

void FindingDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    WordsDelegate::initStyleOption(option, index);
    if (FindingModel::isGroup(index)) {
        option->font.setBold(true);
        option->fontMetrics = QFontMetrics(option->font);
        return;
    }
    if (index.column() == FindingModel::Number)
        option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    if (m_model.at(index).accepted)
        option->palette.setColor(QPalette::Text, shade(option->palette, Faint));
}

std::optional<BoldWords> FindingDelegate::wordsOf(const QModelIndex &index) const
{
    if (FindingModel::isGroup(index) || index.column() != FindingModel::Words)
        return std::nullopt;
    return wordsAround(m_model.at(index).finding);
}
