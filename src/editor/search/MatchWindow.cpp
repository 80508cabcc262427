#include "editor/search/MatchWindow.h"

#include "editor/search/MatchDelegate.h"
#include "platform/Failures.h"
#include "store/AdventureEvents.h"
#include "ui_MatchWindow.h"
#include "widgets/ToolWindow.h"

#include <QElapsedTimer>
#include <QHideEvent>

namespace
{
constexpr qint64 AtATime = 20;    // milliseconds of filling between two looks at the keyboard
constexpr int MostLines = 100000; // more than anybody reads
constexpr int FewTexts = 50;      // to list again one by one
} // namespace

MatchWindow::MatchWindow(const Variables &variables, SearchCommands &commands, QWidget *parent)
    : QDialog(parent), m_variables(variables), m_commands(commands),
      m_ui(std::make_unique<Ui::MatchWindow>())
{
    m_ui->setupUi(this);
    m_ui->matches->setModel(&m_model);
    m_ui->matches->setItemDelegate(new MatchDelegate(m_model, this));
    connect(m_ui->matches, &QListView::activated, this, [this](const QModelIndex &index) {
        Q_EMIT wanted(ListedMatch(m_model.line(index.row()).match)); // the line may go meanwhile
    });
    connect(m_ui->matches->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MatchWindow::showCount);
    connect(m_ui->replaceChosen, &QPushButton::clicked, this, &MatchWindow::replaceWanted);
    connect(m_ui->close, &QPushButton::clicked, this, &QDialog::reject);
    connect(&m_filling, &QTimer::timeout, this, &MatchWindow::fillSome);
    follow();
}

MatchWindow::~MatchWindow() = default;

void MatchWindow::follow()
{
    const AdventureEvents *events = m_variables.Events.get();
    connect(events, &AdventureEvents::paragraphSaved, this, &MatchWindow::relist);
    connect(events, &AdventureEvents::textsChanged, this, [this](const QList<int> &numbers) {
        if (m_finder && numbers.size() > FewTexts) {
            fill();
            return;
        }
        for (const int n : numbers)
            relist(n);
    });
    connect(events, &AdventureEvents::adventureReplaced, this, &QWidget::hide);
}

void MatchWindow::list(const MatchFinder &finder, std::optional<int> paragraph)
{
    m_finder = finder;
    m_only = paragraph;
    fill();
    showAside(*this);
    m_ui->matches->setFocus();
}

void MatchWindow::fill()
{
    m_model.clear();
    m_unreadable.clear();
    m_next = m_only.value_or(m_variables.LowestWritten);
    m_filling.start();
    showCount();
}

void MatchWindow::fillSome()
{
    QElapsedTimer timer;
    timer.start();
    QList<MatchLine> lines;
    bool tooCostly = false;
    while (!tooCostly && m_next <= lastToFill() && timer.elapsed() < AtATime) {
        try {
            lines += m_commands.lines(*m_finder, m_next++, m_unreadable);
        } catch (const PatternTooCostly &) {
            tooCostly = true;
        }
    }
    append(lines);
    const bool whole = m_next > lastToFill();
    if (whole)
        m_next = Variables::LastParagraph + 1; // paragraphs that are written later belong to it too
    if (tooCostly || whole || m_model.count() >= MostLines)
        m_filling.stop();
    showCount();
    if (tooCostly)
        m_commands.tellTooCostly(m_next - 1);
}

// Enter shows the first one at once, but nothing is chosen yet.
void MatchWindow::append(const QList<MatchLine> &lines)
{
    m_model.append(lines);
    QItemSelectionModel *selection = m_ui->matches->selectionModel();
    if (!selection->currentIndex().isValid() && m_model.count() > 0)
        selection->setCurrentIndex(m_model.index(0), QItemSelectionModel::NoUpdate);
}

void MatchWindow::relist(int n)
{
    if (!m_finder || n >= m_next || n != m_only.value_or(n))
        return;
    m_unreadable.removeAll(n);
    try {
        m_model.replaceParagraph(n, m_commands.lines(*m_finder, n, m_unreadable));
    } catch (const PatternTooCostly &) {
        m_model.replaceParagraph(n, {});
    }
    showCount();
}

void MatchWindow::showCount()
{
    const int count = m_model.count();
    QString text = tr("Occurrences : %1").arg(count);
    if (m_next <= lastToFill())
        text = tr("Occurrences jusqu'au paragraphe %1 : %2").arg(m_next - 1).arg(count);
    if (m_next <= lastToFill() && !m_filling.isActive())
        text = tr("%1 (liste arrêtée là)").arg(text);
    if (!m_unreadable.isEmpty())
        text = tr("%1. Paragraphes illisibles : %2").arg(text, paragraphNames(m_unreadable));
    m_ui->count->setText(text);
    m_ui->replaceChosen->setEnabled(m_ui->matches->selectionModel()->hasSelection());
}

// In the order of the adventure.
QList<ListedMatch> MatchWindow::chosen() const
{
    QList<ListedMatch> chosen;
    const QModelIndexList indexes = m_ui->matches->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : indexes)
        chosen.append(m_model.line(index.row()).match);
    return chosen;
}

bool MatchWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate)
        Q_EMIT left();
    return QDialog::event(event);
}

// Nothing is followed for a list that nobody sees.
void MatchWindow::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous())
        return;
    m_filling.stop();
    m_model.clear();
    m_finder.reset();
}
