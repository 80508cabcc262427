#include "widgets/WordsDelegate.h"

#include <QPainter>

namespace
{
constexpr int Gap = 4; // pixels
} // namespace

void WordsDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    const std::optional<BoldWords> words = wordsOf(index);
    if (!words) {
        CheckDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    painter->save();
    paintCell(*painter, cell);
    paintWords(*painter, cell.rect.adjusted(Gap, 0, -Gap, 0), *words);
    painter->restore();
}

QSize WordsDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {0, option.fontMetrics.height() + 2 * Gap};
}
