#pragma once

#include "store/references/DoubtfulReferences.h"

#include <QDialog>

class QTreeWidget;

// Lists doubtful references: paragraph, words, and what is doubtful. Chosen rows are copied as
// text, with tabs between the columns.
class DoubtfulDialog : public QDialog
{
    Q_OBJECT

public:
    DoubtfulDialog(const QList<DoubtfulReference> &references, const QString &phrase,
                   QWidget *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill(const QList<DoubtfulReference> &references, const QString &phrase);
    void copy() const;

    QTreeWidget *m_list;
};
