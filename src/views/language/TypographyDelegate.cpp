#include "views/language/TypographyDelegate.h"

#include "views/language/TypographyModel.h"
#include "views/language/TypographyWords.h"

#include <QPainter>

namespace
{
constexpr int Gap = 4; // pixels
} // namespace

TypographyDelegate::TypographyDelegate(const TypographyModel &model, QObject *parent)
    : CheckDelegate(parent), m_model(model)
{
}

void TypographyDelegate::initStyleOption(QStyleOptionViewItem *option,
                                         const QModelIndex &index) const
{
    CheckDelegate::initStyleOption(option, index);
    option->font.setBold(TypographyModel::isGroup(index));
    option->fontMetrics = QFontMetrics(option->font);
}

void TypographyDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    if (TypographyModel::isGroup(index) || index.column() == TypographyModel::What) {
        CheckDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString &text = m_model.groupAt(index).text;
    const TypographyMend &mend = m_model.placeAt(index).mend;
    painter->save();
    paintCell(*painter, cell);
    paintWords(*painter, cell.rect.adjusted(Gap, 0, -Gap, 0),
               index.column() == TypographyModel::Before ? wordsBefore(text, mend)
                                                         : wordsAfter(text, mend));
    painter->restore();
}

QSize TypographyDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {0, option.fontMetrics.height() + 2 * Gap};
}
