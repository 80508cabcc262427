#pragma once

#include <QStyledItemDelegate>

class MatchModel;

// Paints a line of the list of matches: number and place in columns, then the words with the match
// in bold.
class MatchDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    MatchDelegate(const MatchModel &model, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const MatchModel &m_model;
};
