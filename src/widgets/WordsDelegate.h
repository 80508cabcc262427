#pragma once

#include "widgets/BoldWords.h"
#include "widgets/CheckDelegate.h"

#include <optional>

// Paints a list of places in texts: some cells have words of which a part stands out.
class WordsDelegate : public CheckDelegate
{
    Q_OBJECT

public:
    using CheckDelegate::CheckDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    // Nothing for a cell like any other.
    virtual std::optional<BoldWords> wordsOf(const QModelIndex &index) const = 0;
};
