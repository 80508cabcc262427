#include "editor/Navigation.h"

#include "editor/EditorView.h"
#include "editor/ParagraphSearch.h"
#include "platform/Ascii.h"
#include "richtext/RichTextBox.h"
#include "store/AdventureEvents.h"
#include "store/LenientNumbers.h"
#include "store/ReferenceIndex.h"

Navigation::Navigation(const Variables &variables, Prompts &prompts, EditorView &view)
    : m_variables(variables), m_prompts(prompts), m_view(view)
{
    connect(variables.Events.get(), &AdventureEvents::adventureReplaced, this, [this] {
        m_history.clear();
        Q_EMIT historyChanged();
    });
    connect(variables.Events.get(), &AdventureEvents::numbersChanged, this,
            [this](const NumberMap &newNumbers) { m_history.follow(newNumbers); });
}

void Navigation::goTo(int n)
{
    const int from = m_variables.CurrentParagraph;
    show(n);
    m_history.go(from, n);
    Q_EMIT historyChanged();
}

void Navigation::show(int n)
{
    m_view.SaveCurParg();
    m_view.LoadParg(n);
}

void Navigation::goBack()
{
    const std::optional<int> n = m_history.before();
    if (!n)
        return;
    show(*n);
    m_history.stepBack();
    Q_EMIT historyChanged();
}

void Navigation::goForward()
{
    const std::optional<int> n = m_history.after();
    if (!n)
        return;
    show(*n);
    m_history.stepForward();
    Q_EMIT historyChanged();
}

void Navigation::goToFirst()
{
    goTo(m_variables.LowestWritten);
}

void Navigation::goToLast()
{
    goTo(m_variables.HighestWritten);
}

void Navigation::goToNext()
{
    if (m_variables.CurrentParagraph < Variables::LastParagraph)
        goTo(m_variables.CurrentParagraph + 1);
}

void Navigation::goToPrevious()
{
    if (m_variables.CurrentParagraph >= 1)
        goTo(m_variables.CurrentParagraph - 1);
}

void Navigation::goWhere(Search search)
{
    if (const std::optional<int> found = search(m_variables, m_variables.CurrentParagraph))
        goTo(*found);
    else
        m_prompts.beep();
}

void Navigation::followNumberAtCaret()
{
    const RichTextBox &box = m_view.editingBox();
    follow(box.text(), box.selStart());
}

void Navigation::followReferenceAtCaret()
{
    const RichTextBox &box = m_view.editingBox();
    const QString text = box.text();
    const qsizetype caret = box.selStart();
    const auto isDigitAt = [&text](qsizetype at) {
        return at >= 0 && at < text.size() && isAsciiDigit(text.at(at));
    };
    follow(text, isDigitAt(caret - 1) && !isDigitAt(caret) ? caret - 1 : caret);
}

void Navigation::follow(QStringView text, qsizetype caret)
{
    const int n = numberAround(text, caret);
    if (n >= 1 && n <= Variables::LastParagraph)
        goTo(n);
}

void Navigation::tellFirstFree()
{
    const std::optional<int> free = firstFree(m_variables, m_variables.CurrentParagraph);
    if (free)
        m_prompts.message(tr("Paragraphe libre : %1").arg(*free), tr("Voilà"),
                          Prompts::Buttons::Ok);
    else
        m_prompts.message(tr("Tous les paragraphes sont écrits ou réservés !"), tr("Aïe !"),
                          Prompts::Buttons::Ok);
}
