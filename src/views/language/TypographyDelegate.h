#pragma once

#include "widgets/WordsDelegate.h"

class TypographyModel;

// Paints a place of the list: the words as they are and as they would be, with what changes in
// bold. Paragraphs are in bold over the whole width.
class TypographyDelegate : public WordsDelegate
{
    Q_OBJECT

public:
    TypographyDelegate(const TypographyModel &model, QObject *parent);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    std::optional<BoldWords> wordsOf(const QModelIndex &index) const override;

private:
    const TypographyModel &m_model;
};
