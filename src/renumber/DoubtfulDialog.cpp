#include "renumber/DoubtfulDialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace
{
constexpr int Columns = 3;
constexpr QSize Comfortable{840, 320};
} // namespace

DoubtfulDialog::DoubtfulDialog(const QList<DoubtfulReference> &references, const QString &phrase,
                               QWidget *parent)
    : QDialog(parent), m_list(new QTreeWidget(this))
{
    constexpr int gap = 8;
    setObjectName(QStringLiteral("DoubtfulDialog"));
    setWindowTitle(tr("Renvois Douteux"));
    auto *close = new QPushButton(tr("&Fermer"), this);
    close->setObjectName(QStringLiteral("close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->setSpacing(gap);
    layout->addWidget(m_list);
    layout->addWidget(close, 0, Qt::AlignRight);
    m_list->installEventFilter(this);
    fill(references, phrase);
    resize(Comfortable.boundedTo(screen()->availableSize()));
}

void DoubtfulDialog::fill(const QList<DoubtfulReference> &references, const QString &phrase)
{
    m_list->setObjectName(QStringLiteral("doubtful"));
    m_list->setAccessibleName(tr("Renvois douteux"));
    m_list->setToolTip(tr("Ctrl+C copie les lignes choisies"));
    m_list->setHeaderLabels({tr("Paragraphe"), tr("Mots"), tr("Raison")});
    m_list->setRootIsDecorated(false);
    m_list->header()->setStretchLastSection(false); // a narrow list scrolls to the whole reason
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    QList<QTreeWidgetItem *> rows;
    for (const DoubtfulReference &reference : references) {
        const ReferenceMark &mark = reference.mark;
        rows.append(new QTreeWidgetItem({QString::number(reference.paragraph), reference.words,
                                         doubtReason(mark.doubt, mark.read, phrase)}));
        rows.last()->setTextAlignment(0, Qt::AlignRight | Qt::AlignTop);
        rows.last()->setTextAlignment(1, Qt::AlignLeft | Qt::AlignTop);
        rows.last()->setTextAlignment(2, Qt::AlignLeft | Qt::AlignTop);
    }
    m_list->addTopLevelItems(rows);
    for (int column = 0; column < Columns; ++column)
        m_list->resizeColumnToContents(column);
    if (!rows.isEmpty())
        m_list->setCurrentItem(rows.first());
}

// By itself the list copies a single word.
bool DoubtfulDialog::eventFilter(QObject *watched, QEvent *event)
{
    const bool copies = event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy);
    if (copies)
        copy();
    return copies || QDialog::eventFilter(watched, event);
}

// In the order of the list, whatever order they were chosen in.
void DoubtfulDialog::copy() const
{
    QStringList lines;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem &item = *m_list->topLevelItem(row);
        if (!item.isSelected())
            continue;
        QStringList columns;
        for (int column = 0; column < Columns; ++column)
            columns.append(item.text(column));
        lines.append(columns.join(u'\t'));
    }
    QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}
