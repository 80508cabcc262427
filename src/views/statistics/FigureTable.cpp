#include "views/statistics/FigureTable.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

FigureTable::FigureTable(QWidget *parent)
    : QWidget(parent), m_sortBox(new QComboBox(this)), m_view(new QTreeView(this))
{
    auto *label = new QLabel(tr("&Trier par :"), this);
    label->setBuddy(m_sortBox);
    auto *above = new QHBoxLayout;
    above->setSpacing(8);
    above->addWidget(label);
    above->addWidget(m_sortBox);
    above->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(above);
    layout->addWidget(m_view);
    m_view->setModel(&m_model);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setItemsExpandable(false);
    m_view->setAllColumnsShowFocus(true);
    setFocusProxy(m_view);
    connect(m_sortBox, &QComboBox::currentIndexChanged, this, &FigureTable::sort);
    connect(m_view->header(), &QHeaderView::sectionClicked, this, &FigureTable::sortBySection);
    connect(m_view, &QTreeView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT clicked(m_model.numberAt(index.row())); });
    const auto tellCurrent = [this](const QModelIndex &index) {
        m_current = index.isValid() ? m_model.numberAt(index.row()) : 0;
        Q_EMIT currentChanged(m_current);
    };
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, tellCurrent);
    connect(m_view, &QTreeView::activated, this,
            [this](const QModelIndex &index) { Q_EMIT activated(m_model.numberAt(index.row())); });
}

void FigureTable::setUp(const QStringList &columns, const std::function<QString(int)> &words,
                        const QString &name, const QString &tip)
{
    m_model.setUp(columns, words);
    m_view->setAccessibleName(name);
    m_view->setToolTip(tip);
    for (const QString &column : columns.first(columns.size() - 1))
        m_sortBox->addItems({column, tr("%1, décroissant").arg(column)});
    QHeaderView &header = *m_view->header();
    header.setSectionsClickable(true);
    header.setSortIndicatorShown(true);
    header.setStretchLastSection(true);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(static_cast<int>(columns.size()) - 1, QHeaderView::Stretch);
    sort(0);
}

void FigureTable::setRows(const QList<FigureModel::Row> &rows)
{
    keepCurrent([&] { m_model.setRows(rows); });
}

// Each column has two entries: upwards and downwards.
void FigureTable::sort(int entry)
{
    const Qt::SortOrder order = entry % 2 == 0 ? Qt::AscendingOrder : Qt::DescendingOrder;
    m_view->header()->setSortIndicator(entry / 2, order);
    keepCurrent([&] { m_model.sort(entry / 2, order); });
}

void FigureTable::sortBySection(int section)
{
    const int upwards = 2 * section;
    if (upwards < m_sortBox->count())
        m_sortBox->setCurrentIndex(m_sortBox->currentIndex() == upwards ? upwards + 1 : upwards);
    else
        m_view->header()->setSortIndicator(m_sortBox->currentIndex() / 2,
                                           m_view->header()->sortIndicatorOrder());
}

void FigureTable::keepCurrent(const std::function<void()> &change)
{
    const int number = m_current;
    change();
    const int now = m_model.rowOf(number);
    if (now < 0 || now == m_view->currentIndex().row())
        return;
    m_view->setCurrentIndex(m_model.index(now, 0));
    m_view->scrollTo(m_model.index(now, 0));
}
