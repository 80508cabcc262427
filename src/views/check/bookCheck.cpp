#include "views/check/bookCheck.h"

#include "check/FindingMends.h"
#include "check/GrammarCheck.h"
#include "check/LiveCheck.h"
#include "check/StartNumbers.h"
#include "platform/Failures.h"
#include "platform/Guarded.h"
#include "store/AdventureEvents.h"
#include "store/ExportTarget.h"
#include "store/Variables.h"
#include "ui_bookCheck.h"
#include "views/check/FindingList.h"
#include "widgets/ToolWindow.h"

#include <QHideEvent>
#include <QMenu>
#include <algorithm>

namespace
{
QString counted(const QString &caption, const QList<Finding> &findings, Severity severity)
{
    const auto count =
        std::count_if(findings.begin(), findings.end(), [severity](const Finding &finding) {
            return finding.severity() == severity;
        });
    return bookCheck::tr("%1 : %2").arg(caption).arg(count);
}

QString spaced(const QList<int> &numbers)
{
    QStringList words;
    for (const int n : numbers)
        words.append(QString::number(n));
    return words.join(u' ');
}
} // namespace

bookCheck::bookCheck(const Variables &variables, LiveCheck &check, GrammarCheck &grammar,
                     Prompts &prompts, QWidget *parent)
    : QDialog(parent), m_variables(variables), m_check(check), m_grammar(grammar),
      m_prompts(prompts), m_ui(std::make_unique<Ui::bookCheck>())
{
    m_ui->setupUi(this);
    keepRoomForLines(*m_ui->lblState, 2);
    keepRoomForLines(*m_ui->lblStartsNote, 2);
    m_ui->btnAccept->setMinimumWidth(m_ui->btnAccept->sizeHint().width()); // its text changes
    connectControls();
    m_ui->btnGrammar->setVisible(grammar.isAvailable());
    m_ui->btnGrammar->setMinimumWidth(m_ui->btnGrammar->sizeHint().width());
    connect(&check, &LiveCheck::changed, this, &bookCheck::refresh);
    connect(&grammar, &GrammarCheck::changed, this, &bookCheck::refresh);
    const AdventureEvents *events = variables.Events.get();
    connect(events, &AdventureEvents::numbersChanged, this,
            [this](const NumberMap &numbers) { list().renumber(numbers); });
    connect(events, &AdventureEvents::extrasChanged, this, &bookCheck::showStarts);
    connect(events, &AdventureEvents::adventureReplaced, this, [this] {
        list().forget();
        m_ui->txtFilter->clear();
        m_ui->txtStarts->setModified(false);
        refresh();
    });
}

bookCheck::~bookCheck() = default;

void bookCheck::connectControls()
{
    for (const QAbstractButton *filter : {static_cast<QAbstractButton *>(m_ui->btnFaults),
                                          static_cast<QAbstractButton *>(m_ui->btnRemarks),
                                          static_cast<QAbstractButton *>(m_ui->btnNotes),
                                          static_cast<QAbstractButton *>(m_ui->chkAccepted)})
        connect(filter, &QAbstractButton::toggled, this, &bookCheck::refresh);
    connect(m_ui->txtFilter, &QLineEdit::textChanged, this, &bookCheck::refresh);
    connect(m_ui->findings, &FindingList::wanted, this, &bookCheck::wanted);
    connect(m_ui->findings, &FindingList::choiceChanged, this, &bookCheck::showChoice);
    connect(m_ui->txtStarts, &QLineEdit::editingFinished, this, &bookCheck::takeStarts);
    connect(m_ui->btnAccept, &QPushButton::clicked, this, &bookCheck::acceptChosen);
    connect(m_ui->btnMend, &QPushButton::clicked, this, &bookCheck::mendChosen);
    connectGuarded(m_ui->btnGrammar, &QPushButton::clicked, this, m_prompts,
                   [this] { btnGrammar_Click(); });
    m_ui->btnSave->setMenu(new QMenu(this));
    const QAction *text = m_ui->btnSave->menu()->addAction(tr("&Texte..."));
    const QAction *table = m_ui->btnSave->menu()->addAction(tr("Table &CSV..."));
    connectGuarded(text, &QAction::triggered, this, m_prompts,
                   [this] { save(QStringLiteral("txt"), tr("Fichiers texte"), &findingText); });
    connectGuarded(table, &QAction::triggered, this, m_prompts,
                   [this] { save(QStringLiteral("csv"), tr("Fichiers CSV"), &findingCsv); });
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QDialog::reject);
}

FindingList &bookCheck::list()
{
    return *m_ui->findings;
}

void bookCheck::focusList()
{
    m_ui->findings->setFocus();
}

void bookCheck::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    fill();
    Q_EMIT shown(true);
}

void bookCheck::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous())
        return;
    m_grammar.stop();
    Q_EMIT shown(false);
}

// Nothing is listed in a window that nobody sees.
void bookCheck::refresh()
{
    if (isVisible())
        fill();
}

void bookCheck::fill()
{
    FindingFilter filter;
    filter.words = m_ui->txtFilter->text();
    filter.severities = {m_ui->btnFaults->isChecked(), m_ui->btnRemarks->isChecked(),
                         m_ui->btnNotes->isChecked()};
    filter.accepted = m_ui->chkAccepted->isChecked();
    list().setFindings(findingGroups(book(), filter));
    showCounts();
    showGrammar();
    showStarts();
}

CheckedBook bookCheck::book() const
{
    const QList<Finding> grammar = m_grammar.findings(m_check.texts());
    return grammar.isEmpty() ? m_check.book() : withFindings(m_variables, m_check.book(), grammar);
}

// The same button stops it.
void bookCheck::btnGrammar_Click()
{
    if (m_grammar.isRunning()) {
        m_grammar.stop();
        return;
    }
    m_check.bringUpToDate();
    m_grammar.start(m_check.texts());
}

void bookCheck::showGrammar()
{
    const bool runs = m_grammar.isRunning();
    m_ui->btnGrammar->setText(runs ? tr("Arrê&ter") : tr("&Grammaire"));
    m_ui->btnGrammar->setEnabled(m_variables.AdventureOpen);
}

void bookCheck::showCounts()
{
    const QList<Finding> findings = book().findings;
    m_ui->btnFaults->setText(counted(tr("Fa&utes"), findings, Severity::Fault));
    m_ui->btnRemarks->setText(counted(tr("Re&marques"), findings, Severity::Remark));
    m_ui->btnNotes->setText(counted(tr("&Notes"), findings, Severity::Note));
    m_ui->btnSave->setEnabled(!list().groups().isEmpty());
}

void bookCheck::showChoice()
{
    const bool takesBack = chosen(false).isEmpty() && !chosen(true).isEmpty();
    m_ui->btnAccept->setText(takesBack ? tr("Ne plus &accepter") : tr("&Accepter"));
    m_ui->btnAccept->setToolTip(
        takesBack ? tr("Signaler de nouveau ce qui est choisi dans la liste")
                  : tr("Ne plus signaler ce qui est choisi dans la liste, tant que la phrase "
                       "reste la même"));
    m_ui->btnAccept->setEnabled(takesBack || !chosen(false).isEmpty());
    m_ui->btnMend->setEnabled(!mendable().isEmpty());
    QString text = m_grammar.state();
    text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + choiceText();
    if (!m_check.texts().unreadable.isEmpty())
        text += u'\n' +
                tr("Paragraphes illisibles : %1").arg(paragraphNames(m_check.texts().unreadable));
    m_ui->lblState->setText(text);
}

QString bookCheck::choiceText() const
{
    if (!m_check.isChecked())
        return m_variables.AdventureOpen ? tr("Contrôle en cours...")
                                         : tr("Aucune aventure n'est ouverte.");
    const auto count = static_cast<int>(m_ui->findings->chosen().size());
    if (count > 1)
        return tr("%n constat(s) choisi(s).", nullptr, count);
    const std::optional<Finding> finding = m_ui->findings->current();
    if (finding) {
        const QList<Mend> mends = mendsOfOne(*finding);
        return tr("%1 : %2").arg(finding->number).arg(finding->sentence()) +
               (mends.isEmpty() ? QString()
                                : u' ' + tr("Corriger : %1.").arg(mends.first().caption));
    }
    return m_check.book().findings.isEmpty() ? tr("Rien à signaler dans ce livre.") : QString();
}

QList<Finding> bookCheck::chosen(bool accepted) const
{
    QList<Finding> findings;
    const QList<ListedFinding> listed = m_ui->findings->chosen();
    for (const ListedFinding &one : listed)
        if (one.accepted == accepted)
            findings.append(one.finding);
    return findings;
}

QList<Mend> bookCheck::mendsOfOne(const Finding &finding) const
{
    return mendsOf(finding, m_check.texts().texts.at(finding.number));
}

QList<Finding> bookCheck::mendable() const
{
    QList<Finding> findings = chosen(false);
    findings.removeIf([this](const Finding &finding) { return mendsOfOne(finding).isEmpty(); });
    return findings;
}

void bookCheck::acceptChosen()
{
    const QList<Finding> open = chosen(false);
    if (open.isEmpty())
        Q_EMIT acceptWanted(chosen(true), false);
    else
        Q_EMIT acceptWanted(open, true);
}

// Of several findings each is mended in the way that is meant most likely; for one the author may
// choose.
void bookCheck::mendChosen()
{
    const QList<Finding> findings = mendable();
    const QList<Mend> mends = findings.size() == 1 ? mendsOfOne(findings.first()) : QList<Mend>();
    if (mends.size() < 2) {
        Q_EMIT mendWanted(findings, 0);
        return;
    }
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int i = 0; i < mends.size(); ++i)
        connect(menu->addAction(mends.at(i).caption), &QAction::triggered, this,
                [this, findings, i] { Q_EMIT mendWanted(findings, i); });
    menu->popup(m_ui->btnMend->mapToGlobal(m_ui->btnMend->rect().bottomLeft()));
}

// What is no number stays in the field, to be mended there.
void bookCheck::takeStarts()
{
    if (!m_ui->txtStarts->isModified())
        return;
    const StartNumbers typed = startNumbers(m_ui->txtStarts->text());
    if (typed.refused.isEmpty()) {
        m_ui->txtStarts->setModified(false);
        Q_EMIT startsWanted(typed.numbers);
    }
    showStarts();
}

void bookCheck::showStarts()
{
    if (!m_ui->txtStarts->isModified())
        m_ui->txtStarts->setText(m_variables.AdventureOpen ? spaced(readingStarts(m_variables))
                                                           : QString());
    const QString refused = startNumbers(m_ui->txtStarts->text()).refused;
    m_ui->lblStartsNote->setText(
        refused.isEmpty()
            ? startsNote(m_variables)
            : tr("« %1 » n'est pas un numéro de 1 à 2000 : rien n'a changé.").arg(refused));
}

void bookCheck::save(const QString &extension, const QString &kind,
                     QByteArray (*bytesOf)(const QList<FindingGroup> &))
{
    const QString path = m_prompts.saveName(
        tr("Enregistrer la Liste"), QStringLiteral("%1 (*.%2)|*.%2").arg(kind, extension),
        extension, tr("%1 constats").arg(proposedName(m_variables)));
    if (path.isEmpty())
        return;
    writeExport(m_variables, path, bytesOf(list().groups()));
    m_ui->lblState->setText(tr("Enregistré : %1").arg(path));
}
