#pragma once

#include "widgets/CheckDelegate.h"

class TypographyModel;

// Paints a place of the list: the words as they are and as they would be, with what changes in
// bold. Paragraphs are in bold over the whole width.
class TypographyDelegate : public CheckDelegate
{
    Q_OBJECT

public:
    TypographyDelegate(const TypographyModel &model, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    const TypographyModel &m_model;
};
