#include "editor/search/MatchDelegate.h"

#include "editor/search/MatchModel.h"
#include "widgets/BoldWords.h"

#include <QPainter>

namespace
{
constexpr int Gap = 8; // pixels
} // namespace

MatchDelegate::MatchDelegate(const MatchModel &model, QObject *parent)
    : QStyledItemDelegate(parent), m_model(model)
{
}

void MatchDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    const MatchLine &line = m_model.line(index.row());
    painter->save();
    paintCell(*painter, option);
    QRect room = option.rect.adjusted(Gap, 0, -Gap, 0);
    for (const int value : {line.match.paragraph, line.match.position}) {
        const int column = option.fontMetrics.horizontalAdvance(QStringLiteral("00000"));
        painter->drawText(QRect(room.x(), room.y(), column, room.height()),
                          Qt::AlignRight | Qt::AlignVCenter, QString::number(value));
        room.setLeft(room.x() + column + Gap);
    }
    room.setLeft(room.x() + Gap);
    paintWords(*painter, room, {line.words, line.boldStart, line.boldLength});
    painter->restore();
}

QSize MatchDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {0, option.fontMetrics.height() + Gap};
}
