#include "renumber/history/NumberWindow.h"

#include "platform/Guarded.h"
#include "renumber/history/HistoryWords.h"
#include "store/AdventureEvents.h"
#include "store/CommandHistory.h"
#include "store/ExportTarget.h"
#include "store/LenientNumbers.h"
#include "ui_NumberWindow.h"
#include "widgets/ToolWindow.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QSignalBlocker>
#include <algorithm>
#include <numeric>

NumberWindow::NumberWindow(const Variables &variables, Prompts &prompts,
                           const std::function<QString(int)> &words, QWidget *parent)
    : QDialog(parent), m_variables(variables), m_prompts(prompts),
      m_ui(std::make_unique<Ui::NumberWindow>()), m_model(words)
{
    m_ui->setupUi(this);
    keepRoomForLines(*m_ui->lblState, 2);
    setUpTable();
    beginAnew();
    connectControls();
    followAdventure();
    NumberBox::connectBeeps(*this, prompts);
}

NumberWindow::~NumberWindow() = default;

void NumberWindow::setUpTable()
{
    m_ui->table->setModel(&m_model);
    QHeaderView &header = *m_ui->table->header();
    header.setSectionsClickable(true);
    header.setSortIndicatorShown(true);
    header.setSortIndicator(NumberModel::After, Qt::AscendingOrder);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setResizeContentsPrecision(0); // no number is wider than what stands above it
    header.setSectionResizeMode(NumberModel::Words, QHeaderView::Stretch);
    m_ui->sortBox->setCurrentIndex(NumberModel::After);
    // The view's own copying takes one cell.
    auto *copyRows = new QAction(m_ui->table);
    copyRows->setShortcut(QKeySequence::Copy);
    copyRows->setShortcutContext(Qt::WidgetShortcut);
    m_ui->table->addAction(copyRows);
    connect(copyRows, &QAction::triggered, this, &NumberWindow::copy);
}

void NumberWindow::connectControls()
{
    connect(m_ui->fromBox, &QComboBox::currentIndexChanged, this, &NumberWindow::fill);
    connect(m_ui->toBox, &QComboBox::currentIndexChanged, this, &NumberWindow::fill);
    connect(m_ui->sortBox, &QComboBox::currentIndexChanged, this, &NumberWindow::sort);
    connect(m_ui->table->header(), &QHeaderView::sectionClicked, this,
            &NumberWindow::sortBySection);
    connect(m_ui->txtNumber, &QLineEdit::textChanged, this, &NumberWindow::find);
    connect(m_ui->txtNumber, &QLineEdit::returnPressed, this, &NumberWindow::findNext);
    connect(m_ui->table, &QTreeView::activated, this, [this](const QModelIndex &index) {
        Q_EMIT wanted(m_model.rows().at(index.row()).now);
    });
    connect(m_ui->btnCopy, &QPushButton::clicked, this, &NumberWindow::copy);
    connectGuarded(m_ui->btnSave, &QPushButton::clicked, this, m_prompts, [this] { save(); });
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QDialog::reject);
}

void NumberWindow::followAdventure()
{
    const AdventureEvents *events = m_variables.Events.get();
    connect(events, &AdventureEvents::historyChanged, this, &NumberWindow::refresh);
    connect(events, &AdventureEvents::textsChanged, this, &NumberWindow::refresh);
    connect(events, &AdventureEvents::paragraphSaved, this, &NumberWindow::refresh);
    connect(events, &AdventureEvents::numbersChanged, this, [this](const NumberMap &newNumbers) {
        keepCurrent(newNumbers.at(currentNumber()), [this] { refresh(); });
    });
    connect(events, &AdventureEvents::adventureReplaced, this, [this] {
        beginAnew();
        refresh();
    });
}

void NumberWindow::focusTable()
{
    m_ui->table->setFocus();
}

void NumberWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    fill();
}

// Nothing is read for a window that nobody sees.
void NumberWindow::refresh()
{
    if (isVisible())
        fill();
}

void NumberWindow::fill()
{
    fillPoints(*m_ui->fromBox);
    fillPoints(*m_ui->toBox);
    keepCurrent(currentNumber(), [this] {
        m_model.setRows(numberRows(m_variables, point(*m_ui->fromBox), point(*m_ui->toBox)));
    });
    showState();
}

// What was the last entry, now, stays so.
void NumberWindow::fillPoints(QComboBox &box) const
{
    const QStringList names = pointNames(*m_variables.History);
    QStringList shown;
    for (int i = 0; i < box.count(); ++i)
        shown.append(box.itemText(i));
    if (shown == names)
        return;
    const QSignalBlocker quiet(box);
    const int last = static_cast<int>(names.size()) - 1;
    const int chosen = box.currentIndex() == box.count() - 1 ? last : box.currentIndex();
    box.clear();
    box.addItems(names);
    box.setCurrentIndex(std::min(chosen, last));
}

qsizetype NumberWindow::point(const QComboBox &box) const
{
    return box.currentIndex() == box.count() - 1 ? m_variables.History->done().size()
                                                 : box.currentIndex();
}

// From the opening until now.
void NumberWindow::beginAnew()
{
    fillPoints(*m_ui->fromBox);
    fillPoints(*m_ui->toBox);
    const QSignalBlocker quietFrom(m_ui->fromBox);
    const QSignalBlocker quietTo(m_ui->toBox);
    m_ui->fromBox->setCurrentIndex(0);
    m_ui->toBox->setCurrentIndex(m_ui->toBox->count() - 1);
}

// The entries: by the old number, by the new one, and the same downwards.
void NumberWindow::sort()
{
    const int entry = m_ui->sortBox->currentIndex();
    const int column = entry % 2;
    const Qt::SortOrder order = entry < 2 ? Qt::AscendingOrder : Qt::DescendingOrder;
    m_ui->table->header()->setSortIndicator(column, order);
    keepCurrent(currentNumber(), [&] { m_model.sort(column, order); });
}

void NumberWindow::sortBySection(int section)
{
    if (section == NumberModel::Words)
        return;
    const bool again = m_ui->sortBox->currentIndex() == section;
    m_ui->sortBox->setCurrentIndex(again ? section + 2 : section);
}

QList<int> NumberWindow::rowsFound() const
{
    const std::optional<int> n = lenientParagraph(m_ui->txtNumber->text());
    return n ? m_model.rowsOf(*n) : QList<int>();
}

void NumberWindow::find()
{
    const QList<int> found = rowsFound();
    if (!found.isEmpty())
        select(found.first());
    showState();
}

// The paragraph that had the number before, and the one that has it after, in turn.
void NumberWindow::findNext()
{
    const QList<int> found = rowsFound();
    if (found.isEmpty())
        m_prompts.beep();
    else
        select(found.value(found.indexOf(m_ui->table->currentIndex().row()) + 1, found.first()));
}

// Those that are chosen, or all with what the columns are called.
void NumberWindow::copy()
{
    QList<int> rows;
    const QModelIndexList chosen = m_ui->table->selectionModel()->selectedRows();
    for (const QModelIndex &index : chosen)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    QString head;
    if (rows.isEmpty() || rows.size() == m_model.rowCount()) {
        rows.resize(m_model.rowCount());
        std::iota(rows.begin(), rows.end(), 0);
        head = numberTableHead().join(u'\t') + u'\n';
    }
    QGuiApplication::clipboard()->setText(head + m_model.text(rows));
    m_ui->lblState->setText(tr("%n ligne(s) copiée(s).", nullptr, static_cast<int>(rows.size())));
}

void NumberWindow::save()
{
    const QString path =
        m_prompts.saveName(tr("Enregistrer la Table"), tr("Fichiers CSV (*.csv)|*.csv"),
                           QStringLiteral("csv"), tr("%1 numéros").arg(proposedName(m_variables)));
    if (path.isEmpty())
        return;
    writeExport(m_variables, path, m_model.csv());
    m_ui->lblState->setText(tr("Enregistré : %1").arg(path));
}

// What became of the number that is looked for, or of all of them.
void NumberWindow::showState()
{
    const std::optional<int> n = lenientParagraph(m_ui->txtNumber->text());
    const QList<NumberRow> &rows = m_model.rows();
    if (!m_ui->txtNumber->text().isEmpty()) {
        m_ui->lblState->setText(n ? m_model.whatBecameOf(*n)
                                  : tr("Aucun paragraphe n'a ce numéro."));
        return;
    }
    const auto moved = std::count_if(rows.begin(), rows.end(),
                                     [](const NumberRow &row) { return row.before != row.after; });
    m_ui->lblState->setText(
        tr("%n paragraphe(s) sur %1 ont un autre numéro.", nullptr, static_cast<int>(moved))
            .arg(rows.size()));
}

void NumberWindow::select(int row)
{
    m_ui->table->setCurrentIndex(m_model.index(row, 0));
    m_ui->table->scrollTo(m_model.index(row, 0), QAbstractItemView::PositionAtCenter);
}

int NumberWindow::currentNumber() const
{
    const int row = m_ui->table->currentIndex().row();
    return row < 0 ? 0 : m_model.rows().at(row).now;
}

// The paragraph n is on the current row, and chosen if the current one was, after the change too.
void NumberWindow::keepCurrent(int n, const std::function<void()> &change)
{
    const bool chosen = m_ui->table->selectionModel()->hasSelection();
    change();
    const QList<NumberRow> &rows = m_model.rows();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [n](const NumberRow &other) { return other.now == n; });
    if (rows.isEmpty())
        return;
    const int current = row == rows.end() ? 0 : static_cast<int>(row - rows.begin());
    if (current == m_ui->table->currentIndex().row())
        return;
    if (chosen)
        select(current);
    else
        m_ui->table->selectionModel()->setCurrentIndex(m_model.index(current, 0),
                                                       QItemSelectionModel::NoUpdate);
}
