#include "editor/search/SearchCommands.h"

#include "editor/ParagraphSearch.h"
#include "editor/search/MatchFinder.h"
#include "editor/search/TextReplacing.h"
#include "platform/Failures.h"
#include "richtext/RichTextBox.h"
#include "store/AdventureCommands.h"
#include "store/CommandHistory.h"
#include "store/DamagedTexts.h"
#include "store/LongWork.h"
#include "store/ParagraphStore.h"

#include <algorithm>
#include <map>

namespace
{
constexpr int WordsBefore = 30; // characters
constexpr int WordsBehind = 80;
constexpr int MostBold = 200;

QString onOneLine(QString text)
{
    return text.replace(QLatin1String("\r\n"), QLatin1String(" "));
}

// What stands before a match in its line: whole words, if any fit.
QString wordsBefore(const QString &text, qsizetype position)
{
    if (position <= WordsBefore)
        return onOneLine(text.left(position));
    const QString before = onOneLine(text.mid(position - WordsBefore, WordsBefore));
    const qsizetype blank = before.indexOf(u' ');
    return QStringLiteral("...") + (blank < before.size() - 1 ? before.mid(blank + 1) : before);
}
} // namespace

MatchLine matchLine(int n, const QString &text, const Replacement &match)
{
    const QString found = text.mid(match.position, match.length);
    const QString before = wordsBefore(text, match.position);
    const QString bold = onOneLine(found).left(MostBold);
    const QString behind = onOneLine(text.mid(match.position + match.length, WordsBehind));
    return {{n, static_cast<int>(match.position), found},
            before + bold + behind,
            static_cast<int>(before.size()),
            static_cast<int>(bold.size())};
}

SearchCommands::SearchCommands(Variables &variables, Prompts &prompts, AdventureView &view,
                               WorkReport &report)
    : m_variables(variables), m_prompts(prompts), m_view(view), m_report(report)
{
}

bool SearchCommands::isGiven(const QString &text)
{
    if (text.isEmpty())
        m_prompts.message(nothingGiven(), tr("Tsé"), Prompts::Buttons::Ok);
    return !text.isEmpty();
}

QString SearchCommands::nothingGiven()
{
    return tr("Vous devez chercher pour quelque chose.");
}

QString SearchCommands::textOf(int n) const
{
    QList<int> unreadable;
    return readablePlainText(m_variables, n, unreadable).value_or(QString());
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

bool SearchCommands::mayErase(const QString &question)
{
    return m_prompts.message(question, tr("Attention"), Prompts::Buttons::OkCancel) ==
           Prompts::Answer::Ok;
}

std::optional<int> SearchCommands::replaceAll(const SearchFor &what, const QString &by, Where where)
{
    const auto mayEraseAll = [this] {
        return mayErase(tr("La case Remplacer est vide. Cette opération effacera le texte cherché "
                           "partout où il se trouve. Continuer ?"));
    };
    if (!isGiven(what.text) || (by.isEmpty() && !mayEraseAll()))
        return std::nullopt;
    int count = 0;
    const bool done = reportingFailures(m_prompts, [&] {
        SaveCurParg(m_variables, m_view.editingBox(), m_prompts);
        LongWork work(m_report, tr("Remplacement..."));
        const int current = m_variables.CurrentParagraph;
        QList<int> numbers = writtenParagraphs(m_variables);
        if (where == Where::CurrentParagraph)
            numbers = numbers.contains(current) ? QList<int>{current} : QList<int>{};
        const int before = m_variables.History->newId();
        count = replaceInParagraphs(
            m_variables, m_view.editingBox(), tr("Remplacer Tous « %1 »").arg(what.text), numbers,
            [&](int, const QString &text) {
                return replacementsOfAll(text, what.text, by, what.options);
            },
            work.progress());
        announceDone(m_variables, m_report, before);
        return true;
    });
    return done ? std::optional(count) : std::nullopt;
}

SearchCommands::Count SearchCommands::countAll(const SearchFor &what, const QString &by,
                                               Where where) const
{
    LongWork work(m_report, tr("Recherche..."));
    const Progress progress = work.progress();
    Count count;
    QList<int> unreadable;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        progress(n, Variables::LastParagraph);
        const bool shown = n == m_variables.CurrentParagraph;
        if (!shown && (m_variables.Written.at(n) == 0 || where == Where::CurrentParagraph))
            continue;
        const QString text =
            shown ? m_view.editingBox().text()
                  : readablePlainText(m_variables, n, unreadable).value_or(QString());
        const auto matches = replacementsOfAll(text, what.text, by, what.options).size();
        count.matches += static_cast<int>(matches);
        count.paragraphs += matches > 0 ? 1 : 0;
    }
    if (!unreadable.isEmpty())
        throw UnreadableTexts(unreadable);
    return count;
}

QString SearchCommands::countedText(const SearchFor &what, const QString &by, Where where) const
{
    if (what.text.isEmpty())
        return nothingGiven();
    try {
        const Count count = countAll(what, by, where);
        const QString there = where == Where::CurrentParagraph
                                  ? tr("le paragraphe %1").arg(m_variables.CurrentParagraph)
                                  : tr("%n paragraphe(s)", nullptr, count.paragraphs);
        return count.matches == 0
                   ? tr("Aucune occurrence.")
                   : tr("%n occurrence(s) dans %1.", nullptr, count.matches).arg(there);
    } catch (const UsmiraError &error) {
        return failureText(error);
    }
}

QString SearchCommands::replacedText(int count)
{
    return tr("Remplacements effectués : %1.").arg(count);
}

QList<MatchLine> SearchCommands::lines(const MatchFinder &finder, int n,
                                       QList<int> &unreadable) const
{
    QList<MatchLine> lines;
    if (m_variables.Written.at(n) == 0)
        return lines;
    const std::optional<QString> text = readablePlainText(m_variables, n, unreadable);
    if (!text)
        return lines;
    const QList<Replacement> matches = finder.replacements(*text, {});
    for (const Replacement &match : matches)
        lines.append(matchLine(n, *text, match));
    return lines;
}

void SearchCommands::tellTooCostly(int n)
{
    m_prompts.message(tr("Cette expression régulière demande trop de travail au paragraphe %1. "
                         "Simplifiez-la.")
                          .arg(n),
                      tr("Zut"), Prompts::Buttons::Ok);
}

void SearchCommands::replaceListed(const MatchFinder &finder, const QString &by,
                                   const QList<ListedMatch> &matches)
{
    if (by.isEmpty() && !mayErase(tr("La case Remplacer est vide. Cette opération effacera les "
                                     "occurrences choisies. Continuer ?")))
        return;
    reportingFailures(m_prompts, [&] {
        const int replaced = replaceStored(finder, by, matches);
        const auto gone = matches.size() - replaced;
        QString text = replacedText(replaced);
        if (gone > 0)
            text += u' ' + tr("Occurrences que le texte n'a plus : %1.").arg(gone);
        m_prompts.message(text, tr("Remplacer la sélection"), Prompts::Buttons::Ok);
        return true;
    });
}

// A match is still there when the same search finds the same text at the same place.
int SearchCommands::replaceStored(const MatchFinder &finder, const QString &by,
                                  const QList<ListedMatch> &matches)
{
    std::map<int, std::map<qsizetype, QString>> listed;
    for (const ListedMatch &match : matches)
        listed[match.paragraph][match.position] = match.text;
    QList<int> numbers = writtenParagraphs(m_variables);
    numbers.removeIf([&](int n) { return listed.count(n) == 0; });
    LongWork work(m_report, tr("Remplacement..."));
    const int before = m_variables.History->newId();
    const int replaced = replaceInParagraphs(
        m_variables, m_view.editingBox(), tr("Remplacer la sélection"), numbers,
        [&](int n, const QString &text) {
            QList<Replacement> found = finder.replacements(text, by);
            found.removeIf([&](const Replacement &match) {
                const auto chosen = listed[n].find(match.position);
                return chosen == listed[n].end() ||
                       chosen->second != text.mid(match.position, match.length);
            });
            return found;
        },
        work.progress());
    announceDone(m_variables, m_report, before);
    return replaced;
}
