#include "views/graph/StopPanel.h"

#include "platform/Prompts.h"
#include "store/AdventureEvents.h"
#include "ui_StopPanel.h"
#include "views/graph/TypedNumber.h"

#include <QShortcut>
#include <algorithm>

StopPanel::StopPanel(QWidget *parent) : QGroupBox(parent), m_ui(std::make_unique<Ui::StopPanel>())
{
    m_ui->setupUi(this);
    connect(m_ui->btnRemoveStop, &QPushButton::clicked, this, &StopPanel::removeSelected);
    connect(m_ui->btnClearStops, &QPushButton::clicked, this, [this] { set({}); });
    const auto *remove =
        new QShortcut(QKeySequence::Delete, m_ui->stopList, nullptr, nullptr, Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, this, &StopPanel::removeSelected);
    connect(m_ui->stopList, &QListWidget::itemSelectionChanged, this, [this] {
        m_ui->btnRemoveStop->setEnabled(!m_ui->stopList->selectedItems().isEmpty());
    });
    set({});
}

StopPanel::~StopPanel() = default;

void StopPanel::follow(const Variables &variables, Prompts &prompts)
{
    connect(m_ui->btnAddStop, &QPushButton::clicked, this, [this, &prompts] { add(prompts); });
    connect(m_ui->txtStop, &QLineEdit::returnPressed, this, [this, &prompts] { add(prompts); });
    const AdventureEvents *events = variables.Events.get();
    connect(events, &AdventureEvents::adventureReplaced, this, [this] { set({}); });
    connect(events, &AdventureEvents::numbersChanged, this,
            [this](const ParagraphArray<qint16, 2001> &newNumbers) {
                QList<int> moved;
                for (const int n : std::as_const(m_stops))
                    moved.append(newNumbers.at(n));
                set(moved);
            });
}

void StopPanel::toggle(int n)
{
    QList<int> stops = m_stops;
    if (stops.removeAll(n) == 0)
        stops.append(n);
    set(stops);
}

void StopPanel::set(QList<int> stops)
{
    std::sort(stops.begin(), stops.end());
    const bool differs = stops != m_stops;
    m_stops = stops;
    m_ui->stopList->clear();
    for (const int n : std::as_const(m_stops))
        m_ui->stopList->addItem(QString::number(n));
    m_ui->btnRemoveStop->setEnabled(false);
    m_ui->btnClearStops->setEnabled(!m_stops.isEmpty());
    if (differs)
        Q_EMIT changed();
}

void StopPanel::add(Prompts &prompts)
{
    const std::optional<int> n = typedParagraph(m_ui->txtStop->text());
    if (!n)
        prompts.beep();
    else if (!m_stops.contains(*n))
        toggle(*n);
    m_ui->txtStop->selectAll();
}

void StopPanel::removeSelected()
{
    QList<int> stops = m_stops;
    const QList<QListWidgetItem *> selected = m_ui->stopList->selectedItems();
    for (const QListWidgetItem *item : selected)
        stops.removeAll(item->text().toInt());
    set(stops);
}
