#include "editor/SearchCommands.h"

#include "editor/ParagraphSearch.h"
#include "editor/TextReplacing.h"
#include "platform/Failures.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureCommands.h"
#include "store/LongWork.h"
#include "store/ParagraphStore.h"

SearchCommands::SearchCommands(Variables &variables, Prompts &prompts, AdventureView &view,
                               WorkReport &report)
    : m_variables(variables), m_prompts(prompts), m_view(view), m_report(report)
{
}

bool SearchCommands::isGiven(const QString &text)
{
    if (text.isEmpty())
        m_prompts.message(tr("Vous devez chercher pour quelque chose."), tr("Tsé"),
                          Prompts::Buttons::Ok);
    return !text.isEmpty();
}

QString SearchCommands::textOf(int n) const
{
    try {
        return rtfToPlainText(GetParagraphRtf(m_variables, n));
    } catch (const UsmiraError &) {
        return {};
    }
}

std::optional<FoundMatch> SearchCommands::firstMatch(const SearchFor &what, int low, int high) const
{
    for (int n = low; n <= high; ++n) {
        if (m_variables.Written.at(n) == 0)
            continue;
        const qsizetype found = findText(textOf(n), what.text, 0, what.options);
        if (found >= 0)
            return FoundMatch{n, static_cast<int>(found)};
    }
    return std::nullopt;
}

std::optional<FoundMatch> SearchCommands::searchFollowing(const SearchFor &what)
{
    int from = m_variables.CurrentParagraph + 1;
    for (;;) {
        if (const auto match = firstMatch(what, from, m_variables.HighestWritten))
            return match;
        const QString question = tr("Dernier paragraphe atteint. Poursuivre au premier ?");
        if (m_prompts.message(question, tr("Fin de l'aventure"), Prompts::Buttons::YesNo) !=
            Prompts::Answer::Yes)
            return std::nullopt;
        from = m_variables.LowestWritten;
    }
}

QList<FoundMatch> SearchCommands::all(const SearchFor &what)
{
    QList<FoundMatch> matches;
    if (!isGiven(what.text))
        return matches;
    const QList<int> numbers = writtenParagraphs(m_variables);
    for (const int n : numbers) {
        const QString text = textOf(n);
        qsizetype at = 0;
        while ((at = findText(text, what.text, at, what.options)) >= 0) {
            matches.append({n, static_cast<int>(at)});
            at += what.text.size();
        }
    }
    return matches;
}

bool SearchCommands::mayErase()
{
    return m_prompts.message(tr("La case Remplacer est vide. Cette opération effacera le texte "
                                "cherché partout où il se trouve. Continuer ?"),
                             tr("Attention"), Prompts::Buttons::OkCancel) == Prompts::Answer::Ok;
}

std::optional<int> SearchCommands::replaceAll(const SearchFor &what, const QString &by, Where where)
{
    if (!isGiven(what.text) || (by.isEmpty() && !mayErase()))
        return std::nullopt;
    int count = 0;
    const bool done = reportingFailures(m_prompts, [&] {
        SaveCurParg(m_variables, m_view.editingBox(), m_prompts);
        LongWork work(m_report, tr("Remplacement..."));
        const int current = m_variables.CurrentParagraph;
        QList<int> numbers = writtenParagraphs(m_variables);
        if (where == Where::CurrentParagraph)
            numbers = numbers.contains(current) ? QList<int>{current} : QList<int>{};
        count = replaceInParagraphs(
            m_variables, m_view.editingBox(), numbers,
            [&](int, const QString &text) {
                return replacementsOfAll(text, what.text, by, what.options);
            },
            work.progress());
        return true;
    });
    return done ? std::optional(count) : std::nullopt;
}

QString SearchCommands::replacedText(int count)
{
    return tr("Remplacements effectués : %1.").arg(count);
}
