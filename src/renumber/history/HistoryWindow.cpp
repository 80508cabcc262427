#include "renumber/history/HistoryWindow.h"

#include "platform/Translations.h"
#include "renumber/history/HistoryWords.h"
#include "store/AdventureEvents.h"
#include "store/Variables.h"
#include "ui_HistoryWindow.h"
#include "widgets/Shade.h"
#include "widgets/ToolWindow.h"

#include <QEvent>
#include <QHeaderView>
#include <algorithm>

using Command = CommandHistory::Command;

namespace
{
enum Column { Time, Title, Changed, Moved, State };

constexpr double Faint = 0.68; // of the text's colour: lighter, and still easy to read
} // namespace

HistoryWindow::HistoryWindow(const Variables &variables, QWidget *parent)
    : QDialog(parent), m_variables(variables), m_ui(std::make_unique<Ui::HistoryWindow>())
{
    m_ui->setupUi(this);
    keepRoomForLines(*m_ui->lblState, 2);
    QHeaderView &header = *m_ui->commands->header();
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(Title, QHeaderView::Stretch);
    for (const int column : {Changed, Moved})
        m_ui->commands->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    connect(m_ui->commands, &QTreeWidget::currentItemChanged, this, &HistoryWindow::showChoice);
    connect(m_ui->btnTakeBack, &QPushButton::clicked, this,
            [this] { Q_EMIT takeBackWanted(chosenId()); });
    connect(m_ui->btnRedo, &QPushButton::clicked, this, [this] { Q_EMIT redoWanted(chosenId()); });
    connect(m_ui->btnTable, &QPushButton::clicked, this, &HistoryWindow::tableWanted);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QDialog::reject);
    const AdventureEvents *events = variables.Events.get();
    connect(events, &AdventureEvents::historyChanged, this, &HistoryWindow::refresh);
    connect(events, &AdventureEvents::adventureReplaced, this, &HistoryWindow::refresh);
}

HistoryWindow::~HistoryWindow() = default;

void HistoryWindow::focusList()
{
    choose(static_cast<int>(m_variables.History->done().size()) - 1);
    m_ui->commands->setFocus();
}

void HistoryWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    fill();
}

void HistoryWindow::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refresh();
}

// Nothing is filled in for a window that nobody sees.
void HistoryWindow::refresh()
{
    if (isVisible())
        fill();
}

// A command keeps its place from below when it is taken back, and so does the choice.
void HistoryWindow::fill()
{
    const int chosen = rowFromBelow();
    const CommandHistory &history = *m_variables.History;
    m_ui->commands->clear();
    for (const Command &command : history.undone())
        add(command, true);
    for (auto command = history.done().rbegin(); command != history.done().rend(); ++command)
        add(*command, false);
    choose(chosen);
    showChoice();
}

void HistoryWindow::add(const Command &command, bool undone)
{
    auto *row =
        new QTreeWidgetItem({timeOf(command), command.title, QString::number(command.changed),
                             QString::number(command.moved), stateOf(command, undone)});
    row->setData(0, Qt::UserRole, command.id);
    for (const int column : {Changed, Moved})
        row->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    row->setToolTip(
        Time, localeOfTexts().toString(command.time, QStringLiteral("d MMMM yyyy, HH:mm:ss")));
    row->setToolTip(Title, command.title);
    row->setToolTip(State, reasonOf(command, undone));
    for (int column = 0; undone && column <= State; ++column)
        row->setForeground(column, shade(palette(), Faint));
    m_ui->commands->addTopLevelItem(row);
}

int HistoryWindow::rowFromBelow() const
{
    QTreeWidgetItem *current = m_ui->commands->currentItem();
    const int rows = m_ui->commands->topLevelItemCount();
    return current == nullptr ? rows - 1 : rows - 1 - m_ui->commands->indexOfTopLevelItem(current);
}

void HistoryWindow::choose(int fromBelow)
{
    const int rows = m_ui->commands->topLevelItemCount();
    const int row = std::clamp(rows - 1 - fromBelow, 0, std::max(0, rows - 1));
    m_ui->commands->setCurrentItem(m_ui->commands->topLevelItem(row));
}

int HistoryWindow::chosenId() const
{
    const QTreeWidgetItem *current = m_ui->commands->currentItem();
    return current == nullptr ? 0 : current->data(0, Qt::UserRole).toInt();
}

void HistoryWindow::showChoice()
{
    const CommandHistory &history = *m_variables.History;
    const int id = chosenId();
    m_ui->btnTakeBack->setEnabled(history.countToTakeBack(id) > 0);
    m_ui->btnRedo->setEnabled(history.countToRedo(id) > 0);
    QString text = tr("La liste est vide : MasterMix, Remplacer Tous et les autres commandes sur "
                      "tout le livre paraîtront ici, et pourront être annulées.");
    for (const Command &command : history.undone())
        if (command.id == id)
            text = choiceText(command, true);
    for (const Command &command : history.done())
        if (command.id == id)
            text = choiceText(command, false);
    m_ui->lblState->setText(text);
}

QString HistoryWindow::choiceText(const Command &command, bool undone) const
{
    const CommandHistory &history = *m_variables.History;
    if (!command.kept())
        return reasonOf(command, undone);
    if (undone)
        return tr("Rétablir jusqu'à cette commande rétablit %n commande(s).", nullptr,
                  history.countToRedo(command.id));
    return tr("Revenir avant cette commande annule %n commande(s).", nullptr,
              history.countToTakeBack(command.id));
}
