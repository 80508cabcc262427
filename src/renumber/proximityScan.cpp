#include "renumber/proximityScan.h"

#include "platform/Guarded.h"
#include "renumber/ProximityLines.h"
#include "store/AdventureEvents.h"
#include "store/LenientNumbers.h"
#include "ui_proximityScan.h"

#include <QKeyEvent>

proximityScan::proximityScan(const Variables &variables, Prompts &prompts, QWidget *parent)
    : NumberDialog(prompts, Enter::Confirms, parent), m_variables(variables), m_prompts(prompts),
      m_ui(std::make_unique<Ui::proximityScan>())
{
    m_ui->setupUi(this);
    connectForm(*m_ui->btnClose, *m_ui->txtProx);
    connectGuarded(m_ui->btnCompute, &QPushButton::clicked, this, prompts,
                   [this] { btnCompute_Click(); });
    connect(m_ui->btnRemove, &QPushButton::clicked, this, &proximityScan::btnRemove_Click);
    connect(m_ui->theList, &QListWidget::itemDoubleClicked, this, &proximityScan::goToCurrent);
    connect(variables.Events.get(), &AdventureEvents::adventureReplaced, this,
            &proximityScan::emptyList);
}

proximityScan::~proximityScan() = default;

void proximityScan::focusNumber()
{
    m_ui->txtProx->setFocus();
    m_ui->txtProx->selectAll();
}

bool proximityScan::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        Form_Activate();
    return NumberDialog::event(event);
}

void proximityScan::Form_Activate()
{
    m_ui->btnCompute->setText(tr("Détecter"));
}

// There is no default button, as Enter means something else in the list.
void proximityScan::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (focusWidget() == m_ui->theList && event->key() == Qt::Key_Delete)
        m_ui->btnRemove->click();
    else if (!enter)
        NumberDialog::keyPressEvent(event);
    else if (focusWidget() == m_ui->theList)
        goToCurrent();
    else if (auto *button = qobject_cast<QPushButton *>(focusWidget()))
        button->click();
    else
        m_ui->btnCompute->click();
}

void proximityScan::btnCompute_Click()
{
    emptyList();
    const std::optional<ProximityLines> found =
        ProximityScan(m_variables, lenientNumber(m_ui->txtProx->text()), m_prompts);
    if (!found)
        return;
    m_ui->theList->addItems(found->lines);
    m_ui->lblEnd->setText(found->cut);
    m_ui->btnCompute->setText(tr("Redétecter"));
}

void proximityScan::emptyList()
{
    m_ui->theList->clear();
    m_ui->lblEnd->clear();
}

void proximityScan::btnRemove_Click()
{
    const QList<QListWidgetItem *> selected = m_ui->theList->selectedItems();
    qDeleteAll(selected);
}

void proximityScan::goToCurrent()
{
    const QListWidgetItem *line = m_ui->theList->currentItem();
    if (line == nullptr)
        return;
    if (const std::optional<int> n = proximityParagraph(line->text()))
        Q_EMIT wanted(*n);
}
