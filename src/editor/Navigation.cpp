#include "editor/Navigation.h"

#include "editor/EditorView.h"
#include "editor/ParagraphSearch.h"
#include "richtext/RichTextBox.h"
#include "store/LenientNumbers.h"
#include "store/ReferenceIndex.h"

Navigation::Navigation(const Variables &variables, Prompts &prompts, EditorView &view)
    : m_variables(variables), m_prompts(prompts), m_view(view)
{
}

void Navigation::goTo(int n)
{
    if (!m_variables.AdventureOpen)
        return;
    m_view.SaveCurParg();
    m_view.LoadParg(n);
    m_view.focusEditor();
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
    if (!m_variables.AdventureOpen)
        return;
    if (const std::optional<int> found = search(m_variables, m_variables.CurrentParagraph))
        goTo(*found);
    else
        m_prompts.beep();
    m_view.focusEditor();
}

bool Navigation::goToTyped(const QString &number)
{
    if (!m_variables.AdventureOpen)
        return true;
    const int n = roundHalfEven(lenientNumber(number));
    if (n > Variables::LastParagraph) {
        m_prompts.beep();
        return false;
    }
    goTo(n);
    return true;
}

void Navigation::followNumberAtCaret()
{
    if (!m_variables.AdventureOpen)
        return;
    const RichTextBox &box = m_view.editingBox();
    const int n = numberAround(box.text(), box.selStart());
    if (n != 0)
        goTo(n);
}

void Navigation::tellFirstFree()
{
    if (!m_variables.AdventureOpen)
        return;
    m_view.SaveCurParg();
    const std::optional<int> free = firstFree(m_variables, m_variables.CurrentParagraph);
    if (free)
        m_prompts.message(QStringLiteral("Paragraphe libre : ") + QString::number(*free),
                          QStringLiteral("Voilà"), Prompts::Buttons::Ok);
    else
        m_prompts.message(QStringLiteral("Tous les paragraphes sont écrits ou réservés !"),
                          QStringLiteral("Aïe !"), Prompts::Buttons::Ok);
    m_view.focusEditor();
}
