#include "views/language/TypographyDelegate.h"

#include "views/language/TypographyModel.h"
#include "views/language/TypographyWords.h"

TypographyDelegate::TypographyDelegate(const TypographyModel &model, QObject *parent)
    : WordsDelegate(parent), m_model(model)
{
}

void TypographyDelegate::initStyleOption(QStyleOptionViewItem *option,
                                         const QModelIndex &index) const
{
    WordsDelegate::initStyleOption(option, index);
    option->font.setBold(TypographyModel::isGroup(index));
    option->fontMetrics = QFontMetrics(option->font);
}

std::optional<BoldWords> TypographyDelegate::wordsOf(const QModelIndex &index) const
{
    if (TypographyModel::isGroup(index) || index.column() == TypographyModel::What)
        return std::nullopt;
    const QString &text = m_model.groupAt(index).text;
    const TypographyMend &mend = m_model.placeAt(index).mend;
    return index.column() == TypographyModel::Before ? wordsBefore(text, mend)
                                                     : wordsAfter(text, mend);
}
