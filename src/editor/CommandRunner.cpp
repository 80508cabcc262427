#include "editor/CommandRunner.h"

#include "editor/EditorView.h"
#include "editor/MenuStates.h"
#include "platform/Failures.h"
#include "store/Journal.h"

CommandRunner::CommandRunner(Variables &variables, Prompts &prompts, EditorView &view,
                             MenuStates &states)
    : m_variables(variables), m_prompts(prompts), m_view(view), m_states(states)
{
}

void CommandRunner::run(Kind kind, const Work &work)
{
    if (kind != Kind::Anytime && !m_variables.AdventureOpen)
        return;
    guard([&] {
        if (kind == Kind::Editing)
            work();
        else
            m_view.keepingPlace([&] { prepareAndRun(kind, work); });
    });
    m_view.focusEditor();
}

void CommandRunner::guard(const Work &work)
{
    try {
        work();
    } catch (const UsmiraError &error) {
        reportFailure(m_prompts, error);
    } catch (const std::exception &) {
        rescue(tr("Une action a échoué."));
    }
}

void CommandRunner::rescue(const QString &failure)
{
    QString text = failure;
    try {
        if (m_variables.AdventureOpen && m_variables.ParagraphDirty) {
            m_view.keepingPlace([this] { m_view.SaveCurParg(); });
            text = tr("%1 Ce qui était tapé a été mis à l'abri.").arg(failure);
        }
    } catch (const std::exception &) {
        text = failure; // it is still in the box, and to be saved
    }
    m_prompts.message(text, QStringLiteral("BUG"), Prompts::Buttons::Ok);
}

void CommandRunner::prepareAndRun(Kind kind, const Work &work)
{
    tryFinishLeftJournal(m_variables);
    if (kind == Kind::Saved || kind == Kind::Rewriting)
        m_view.SaveCurParg();
    work();
    if (kind == Kind::Rewriting)
        m_view.showAgain();
}

void CommandRunner::add(QAction &item, Kind kind, const Work &work)
{
    QObject::connect(&item, &QAction::triggered, &item, [this, kind, work] { run(kind, work); });
    if (kind != Kind::Anytime)
        m_states.add(item);
}

void CommandRunner::add(QAction &item, QAbstractButton &button, Kind kind, const Work &work)
{
    add(item, kind, work);
    QObject::connect(&button, &QAbstractButton::clicked, &button,
                     [this, kind, work] { run(kind, work); });
    if (kind != Kind::Anytime)
        m_states.add(button);
}
