#include "app/CheckMenu.h"

#include "check/FindingMends.h"
#include "check/TextSentences.h"
#include "editor/CommandRunner.h"
#include "editor/EditorView.h"
#include "editor/Navigation.h"
#include "editor/search/TextReplacing.h"
#include "platform/Failures.h"
#include "richtext/RichTextBox.h"
#include "store/AdventureChanges.h"
#include "store/CommandHistory.h"
#include "store/LongWork.h"
#include "views/check/FindingList.h"
#include "views/check/bookCheck.h"
#include "widgets/ToolWindow.h"

#include <QAction>
#include <QPushButton>
#include <QStatusBar>
#include <cstdlib>
#include <map>
#include <optional>

using Kind = CommandRunner::Kind;

namespace
{
// Where the words of a finding stand in a text that may have changed since: at its place, else
// nearest to it. Nothing when they have gone.
std::optional<TextPart> placeIn(const QString &text, const Finding &finding)
{
    if (text.mid(finding.position, finding.length).simplified() == finding.text)
        return TextPart{finding.position, finding.length};
    std::optional<TextPart> nearest;
    const auto distance = [&](qsizetype at) { return std::abs(at - finding.position); };
    for (qsizetype at = text.indexOf(finding.text); at >= 0;
         at = text.indexOf(finding.text, at + 1))
        if (!nearest || distance(at) < distance(nearest->position))
            nearest = TextPart{at, finding.text.size()};
    return nearest;
}
} // namespace

CheckMenu::CheckMenu(Variables &variables, Prompts &prompts, WorkReport &report,
                     const EditorAccess &editor, QWidget &window)
    : m_variables(variables), m_prompts(prompts), m_report(report), m_editor(editor),
      m_window(window), m_check(variables), m_grammar(variables, GrammarCheck::installedProgram())
{
}

CheckMenu::~CheckMenu() = default;

void CheckMenu::connectItems(const Items &items)
{
    m_editor.runner.add(items.check, Kind::Saved, [this, items] { showList(items); });
    m_editor.runner.add(items.next, Kind::Editing, [this] { step(true); });
    m_editor.runner.add(items.previous, Kind::Editing, [this] { step(false); });
    shareKeys(items, false);
    addToStatusBar(items.statusBar, items.check);
}

// The menus always show what the keys do.
void CheckMenu::shareKeys(const Items &items, bool listIsOpen) const
{
    const QKeySequence front(Qt::CTRL | Qt::Key_F8);
    items.check.setShortcuts(listIsOpen ? QList<QKeySequence>{front}
                                        : QList<QKeySequence>{Qt::Key_F8, front});
    items.next.setShortcut(listIsOpen ? QKeySequence(Qt::Key_F8) : QKeySequence());
    for (QAction *item : {&items.next, &items.previous})
        item->setVisible(listIsOpen);
}

void CheckMenu::addToStatusBar(QStatusBar &bar, QAction &check)
{
    auto *button = new QPushButton(&bar);
    button->setObjectName(QStringLiteral("btnCheck"));
    button->setFlat(true);
    button->setAutoDefault(true); // Enter presses it too
    button->setToolTip(tr("Ouvrir le Contrôle du Livre"));
    bar.insertPermanentWidget(1, button); // behind what it says of the paragraph
    QObject::connect(button, &QPushButton::clicked, &check, &QAction::trigger);
    const auto refresh = [this, &bar, button] { showCounts(bar, *button); };
    QObject::connect(&m_check, &LiveCheck::changed, button, refresh);
    QObject::connect(&bar, &QStatusBar::messageChanged, button, refresh);
    refresh();
}

// It makes room for a message that does not fit beside it, until that has gone.
void CheckMenu::showCounts(QStatusBar &bar, QPushButton &button) const
{
    constexpr int margins = 12;
    const QString message = bar.currentMessage();
    const bool fits =
        !button.isHidden() &&
        margins + bar.fontMetrics().horizontalAdvance(message) <= button.geometry().left();
    bar.setToolTip(message);
    button.setVisible(m_check.isChecked() && (message.isEmpty() || fits));
    button.setText(tr("Contrôle : %1").arg(findingCounts(m_check.book().findings)));
}

bookCheck &CheckMenu::list(const Items &items)
{
    if (!m_list) {
        m_list = std::make_unique<bookCheck>(m_variables, m_check, m_grammar, m_prompts, &m_window);
        connectList(items);
    }
    return *m_list;
}

void CheckMenu::connectList(const Items &items)
{
    bookCheck *list = m_list.get();
    list->addActions({&items.next, &items.previous}); // their keys work there too
    QObject::connect(list, &bookCheck::shown, list,
                     [this, items](bool isShown) { shareKeys(items, isShown); });
    QObject::connect(list, &bookCheck::wanted, list, [this](const Finding &finding) {
        m_editor.runner.run(Kind::Editing, [&] { goTo(finding); });
    });
    QObject::connect(list, &bookCheck::acceptWanted, list,
                     [this](const QList<Finding> &findings, bool accept) {
                         reportingFailures(m_prompts, [&] {
                             this->accept(findings, accept);
                             return true;
                         });
                     });
    QObject::connect(list, &bookCheck::mendWanted, list,
                     [this](const QList<Finding> &findings, int mend) {
                         m_editor.runner.run(Kind::Rewriting, [&] { this->mend(findings, mend); });
                     });
    QObject::connect(list, &bookCheck::startsWanted, list, [this](const QList<int> &starts) {
        reportingFailures(m_prompts, [&] {
            setStarts(starts);
            return true;
        });
    });
}

void CheckMenu::showList(const Items &items)
{
    m_check.bringUpToDate();
    bookCheck &window = list(items);
    showAside(window);
    window.focusList();
}

// The paragraph is saved first, so that what was just mended is no longer in the list.
void CheckMenu::step(bool forward)
{
    m_editor.view.keepingPlace([this] { m_editor.view.SaveCurParg(); });
    m_check.bringUpToDate();
    const std::optional<Finding> finding = m_list ? m_list->list().step(forward) : std::nullopt;
    if (finding)
        goTo(*finding);
    else
        m_prompts.beep();
}

void CheckMenu::goTo(const Finding &finding)
{
    m_editor.navigation.goTo(finding.number);
    RichTextBox &box = m_editor.view.editingBox();
    const std::optional<TextPart> place = placeIn(box.text(), finding);
    if (!place)
        m_prompts.beep();
    const TextPart shown = place.value_or(TextPart{finding.position, 0});
    box.select(static_cast<int>(shown.position), static_cast<int>(shown.length));
    const QRect rect = m_editor.view.revealSelection();
    if (m_list)
        keepClear(*m_list, rect);
    m_window.activateWindow(); // the author goes on in the text
}

void CheckMenu::accept(const QList<Finding> &findings, bool accept)
{
    const AdventureExtras &extras = m_variables.extras;
    changeExtras(m_variables,
                 accept ? withAccepted(extras, findings) : withoutAccepted(extras, findings));
    m_check.bringUpToDate();
}

void CheckMenu::setStarts(const QList<int> &starts)
{
    AdventureExtras extras = m_variables.extras;
    extras.starts = starts;
    changeExtras(m_variables, extras);
    m_check.bringUpToDate();
}

void CheckMenu::mend(const QList<Finding> &findings, int mend)
{
    std::map<int, QList<Finding>> chosen;
    for (const Finding &finding : findings)
        if (m_variables.Written.at(finding.number) == 1)
            chosen[finding.number].append(finding);
    QList<int> numbers;
    for (const auto &[number, unused] : chosen)
        numbers.append(number);
    LongWork work(m_report, tr("Correction..."));
    const int before = m_variables.History->newId();
    replaceInParagraphs(
        m_variables, m_editor.view.editingBox(),
        tr("Corriger %n renvoi(s)", nullptr, static_cast<int>(findings.size())), numbers,
        [&](int n, const QString &text) { return replacementsOf(chosen.at(n), mend, text); },
        work.progress());
    const bool nothing = m_variables.History->newId() == before;
    announceDone(m_variables, m_report, before,
                 nothing ? tr("Le texte a changé : rien n'est corrigé.") : QString());
    m_check.bringUpToDate();
}
