#include "editor/search/searchReplace.h"

#include "editor/CommandRunner.h"
#include "editor/EditorView.h"
#include "editor/Navigation.h"
#include "richtext/RichTextBox.h"
#include "store/AdventureEvents.h"
#include "ui_searchReplace.h"
#include "widgets/ToolWindow.h"

#include <QEvent>
#include <QShortcut>

namespace
{
// What stands on the form is taken by what does the work, so that it must be there first.
std::unique_ptr<Ui::searchReplace> setUp(searchReplace &window)
{
    auto ui = std::make_unique<Ui::searchReplace>();
    ui->setupUi(&window);
    return ui;
}
// As texts have them: what is pasted into a field has others.
QString withLineEnds(QString text)
{
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(u'\n', QStringLiteral("\r\n"));
}
} // namespace

searchReplace::searchReplace(Variables &variables, Prompts &prompts, WorkReport &report,
                             const EditorAccess &editor, QWidget *parent)
    : QDialog(parent), m_variables(variables), m_prompts(prompts), m_editor(editor),
      m_ui(setUp(*this)), m_work(report, *m_ui->barWork),
      m_commands(variables, prompts, editor.view, m_work), m_list(variables, m_commands, parent)
{
    m_ui->Remplacer->setEnabled(false);
    connectControls();
    connect(variables.Events.get(), &AdventureEvents::adventureReplaced, this,
            &searchReplace::forgetMatch);
    connectCount();
}

searchReplace::~searchReplace() = default;

void searchReplace::connectControls()
{
    connect(m_ui->txtSearch, &QLineEdit::textChanged, this, &searchReplace::txtSearch_Change);
    const auto connectTo = [this](const QPushButton *button, void (searchReplace::*handler)()) {
        connect(button, &QPushButton::clicked, this, [this, handler] { run(handler); });
    };
    connectTo(m_ui->Suivant, &searchReplace::Suivant_Click);
    connectTo(m_ui->Remplacer, &searchReplace::Remplacer_Click);
    connectTo(m_ui->RemplacerTous, &searchReplace::RemplacerTous_Click);
    connectTo(m_ui->count, &searchReplace::countAll);
    connectTo(m_ui->listAll, &searchReplace::listAll_Click);
    connect(m_ui->Fermer, &QPushButton::clicked, this, &searchReplace::Fermer_Click);
    connect(&m_list, &MatchWindow::left, this, &searchReplace::left);
    connect(&m_list, &MatchWindow::wanted, this, &searchReplace::showListed);
    connect(&m_list, &MatchWindow::replaceWanted, this, &searchReplace::replaceListed);
    for (QWidget *window : {static_cast<QWidget *>(this), static_cast<QWidget *>(&m_list)}) {
        const auto *again = new QShortcut(QKeySequence(Qt::Key_F3), window);
        connect(again, &QShortcut::activated, this, &searchReplace::searchAgain);
    }
    const auto *back = new QShortcut(QKeySequence::Find, &m_list);
    connect(back, &QShortcut::activated, this, &searchReplace::Form_Activate);
}

// What was counted holds until a field or a text changes; the window knows when what is in the box
// does.
void searchReplace::connectCount()
{
    for (const QLineEdit *field : {m_ui->txtSearch, m_ui->txtReplace})
        connect(field, &QLineEdit::textChanged, this, &searchReplace::forgetCount);
    for (const QCheckBox *box : {m_ui->ch1P, m_ui->chMM, m_ui->chWW})
        connect(box, &QCheckBox::toggled, this, &searchReplace::forgetCount);
    const AdventureEvents *events = m_variables.Events.get();
    connect(events, &AdventureEvents::textsChanged, this, &searchReplace::forgetCount);
    connect(events, &AdventureEvents::adventureReplaced, this, &searchReplace::forgetCount);
}

// The focus that a command gives to the box is that of the main window, which stays behind.
void searchReplace::run(void (searchReplace::*handler)())
{
    m_editor.runner.run(CommandRunner::Kind::Editing, [this, handler] { (this->*handler)(); });
}

void searchReplace::Form_Activate()
{
    m_ui->Remplacer->setEnabled(false);
    if (!matchIsSelected())
        forgetMatch();
    show();
    raise();
    activateWindow();
    m_ui->txtSearch->setFocus();
    m_ui->txtSearch->selectAll();
}

void searchReplace::searchAgain()
{
    if (m_ui->txtSearch->text().isEmpty())
        Form_Activate();
    else
        run(&searchReplace::Suivant_Click);
}

bool searchReplace::event(QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate)
        Q_EMIT left();
    return QDialog::event(event);
}

void searchReplace::txtSearch_Change()
{
    forgetMatch();
    m_editor.view.editingBox().select(0, 0);
}

void searchReplace::forgetMatch()
{
    setFound(-1);
}

void searchReplace::setFound(int position)
{
    m_lastPos = position;
    m_lastFound = position >= 0;
    m_paragraph = m_variables.CurrentParagraph;
    m_ui->Remplacer->setEnabled(m_lastFound);
}

SearchFor searchReplace::wanted() const
{
    return {withLineEnds(m_ui->txtSearch->text()),
            {m_ui->chWW->isChecked(), m_ui->chMM->isChecked()}};
}

bool searchReplace::matchIsSelected() const
{
    const RichTextBox &box = m_editor.view.editingBox();
    const SearchFor what = wanted();
    const auto sensitivity = what.options.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    return m_lastFound && m_paragraph == m_variables.CurrentParagraph &&
           box.selStart() == m_lastPos && box.selText().compare(what.text, sensitivity) == 0;
}

void searchReplace::Suivant_Click()
{
    const SearchFor what = wanted();
    if (!m_commands.isGiven(what.text))
        return;
    if (m_paragraph != m_variables.CurrentParagraph)
        forgetMatch();
    RichTextBox &box = m_editor.view.editingBox();
    const int from = m_lastFound ? m_lastPos + 1 : m_lastPos;
    setFound(box.find(what.text, from, what.options));
    if (m_lastFound) {
        revealMatch();
    } else if (m_ui->ch1P->isChecked()) {
        box.select(0, 0);
        m_prompts.message(tr("Fin du paragraphe atteinte."), tr("Rien"), Prompts::Buttons::Ok);
    } else if (!SearchFollowingParagraphs()) {
        box.select(0, 0);
    }
}

// What was typed is saved before, so that the way round finds it too.
bool searchReplace::SearchFollowingParagraphs()
{
    m_editor.view.SaveCurParg();
    const SearchFor what = wanted();
    const std::optional<FoundMatch> match = m_commands.searchFollowing(what);
    if (!match)
        return false;
    m_editor.navigation.goTo(match->paragraph);
    setFound(m_editor.view.editingBox().find(what.text, match->position, what.options));
    if (m_lastFound)
        revealMatch();
    return m_lastFound;
}

// Our windows make room when they cover what was found.
void searchReplace::revealMatch()
{
    const QRect match = m_editor.view.revealSelection();
    keepClear(*this, match);
    keepClear(m_list, match);
}

// Only the match itself is replaced, not what the author has selected since.
void searchReplace::Remplacer_Click()
{
    if (matchIsSelected())
        m_editor.view.editingBox().setSelText(m_ui->txtReplace->text());
    Suivant_Click();
}

void searchReplace::RemplacerTous_Click()
{
    const std::optional<int> count =
        m_commands.replaceAll(wanted(), m_ui->txtReplace->text(), where());
    if (count)
        m_prompts.message(SearchCommands::replacedText(*count), tr("Remplacer Tous"),
                          Prompts::Buttons::Ok);
}

SearchCommands::Where searchReplace::where() const
{
    return m_ui->ch1P->isChecked() ? SearchCommands::Where::CurrentParagraph
                                   : SearchCommands::Where::Everywhere;
}

void searchReplace::countAll()
{
    m_ui->preview->say(m_commands.countedText(wanted(), m_ui->txtReplace->text(), where()));
}

void searchReplace::forgetCount()
{
    m_ui->preview->say(QString());
}

void searchReplace::Fermer_Click()
{
    reject();
}

void searchReplace::listAll_Click()
{
    const SearchFor what = wanted();
    if (!m_commands.isGiven(what.text))
        return;
    m_editor.view.keepingPlace([this] { m_editor.view.SaveCurParg(); });
    try {
        const bool expression = m_ui->regularExpression->isChecked();
        const std::optional<int> current = m_variables.CurrentParagraph;
        m_list.list(MatchFinder({expression ? m_ui->txtSearch->text() : what.text, what.options,
                                 expression, m_ui->ignoreAccents->isChecked()}),
                    m_ui->ch1P->isChecked() ? current : std::nullopt);
    } catch (const PatternError &error) {
        m_prompts.message(tr("Cette expression régulière n'est pas valable, à partir du "
                             "caractère %1.")
                              .arg(error.position() + 1),
                          tr("Zut"), Prompts::Buttons::Ok);
    }
}

// Saving may have changed the text since it was listed, and the list follows.
void searchReplace::showListed(const ListedMatch &match)
{
    m_editor.runner.run(CommandRunner::Kind::Editing, [&] {
        m_editor.navigation.goTo(match.paragraph);
        RichTextBox &box = m_editor.view.editingBox();
        box.select(match.position, static_cast<int>(match.text.size()));
        if (box.selText() != match.text) {
            box.select(match.position, 0);
            m_prompts.beep();
        }
        revealMatch();
    });
}

void searchReplace::replaceListed()
{
    const QList<ListedMatch> chosen = m_list.chosen();
    const MatchFinder finder = m_list.finder();
    m_editor.runner.run(CommandRunner::Kind::Rewriting, [&] {
        m_commands.replaceListed(finder, m_ui->txtReplace->text(), chosen);
    });
}
