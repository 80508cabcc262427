#pragma once

#include <QStyledItemDelegate>

class FindingModel;

// Paints a list of findings: groups in bold over the whole width, the place of a finding in bold
// among the words around it, what was accepted paler.
class FindingDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    FindingDelegate(const FindingModel &model, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    const FindingModel &m_model;
};
