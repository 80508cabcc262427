#include "renumber/history/HistoryCommands.h"

#include "platform/Failures.h"
#include "richtext/HiddenBox.h"
#include "store/AdventureEvents.h"
#include "store/DamagedTexts.h"
#include "store/HistoryNotes.h"
#include "store/LongWork.h"
#include "store/ParagraphTransaction.h"
#include "store/Session.h"
#include "store/WorkingFiles.h"

#include <algorithm>
#include <tuple>

using Command = CommandHistory::Command;

namespace
{
// Working files hold RTF, also where a file of an older version had an empty text.
QByteArray storable(const QByteArray &rtf)
{
    return rtf.isEmpty() ? HiddenBox().rtf() : rtf;
}

// Written texts that cannot be read and make room for others.
QList<int> lostTexts(BookTexts &now, const BookTexts &then)
{
    QList<int> lost;
    for (int n = 0; n < NumberMap::count(); ++n) {
        const bool stays = then.at(n).asStored && then.at(n).facts.written;
        const int from = then.at(n).origin;
        if (!stays && now.at(from).facts.written && knownFacts(now.at(from)).sha256 == "unreadable")
            lost.append(from);
    }
    return lost;
}

// The number that the text of a paragraph had before; without a text, the number stays.
int followed(int n, const BookTexts &now, const BookTexts &before)
{
    int number = n;
    for (int k = 0; now.at(n).facts.written && k < NumberMap::count(); ++k)
        if (before.at(k).origin == now.at(n).origin)
            number = k;
    return number;
}
} // namespace

HistoryCommands::HistoryCommands(Variables &variables, Prompts &prompts, WorkReport &report)
    : m_variables(variables), m_prompts(prompts), m_report(report)
{
}

bool HistoryCommands::takeBack()
{
    return m_variables.History->nextToTakeBack() && run(Way::Back, 1);
}

bool HistoryCommands::redo()
{
    return m_variables.History->nextToRedo() && run(Way::Again, 1);
}

bool HistoryCommands::takeBackTo(int id)
{
    return run(Way::Back, m_variables.History->countToTakeBack(id));
}

bool HistoryCommands::redoTo(int id)
{
    return run(Way::Again, m_variables.History->countToRedo(id));
}

bool HistoryCommands::run(Way way, int count)
{
    if (count == 0)
        return false;
    return reportingFailures(m_prompts, [&] {
        try {
            const Steps steps = stepsOf(way, count);
            const std::optional<TakeBack::Edited> edited = askAboutEdited(way, steps);
            if (edited)
                apply(way, steps, *edited);
            return edited.has_value();
        } catch (const StepLost &lost) {
            lose(way, lost);
            return false;
        }
    });
}

HistoryCommands::Steps HistoryCommands::stepsOf(Way way, int count) const
{
    const CommandHistory &history = *m_variables.History;
    const QList<Command> &commands = way == Way::Back ? history.done() : history.undone();
    const WorkingFiles files(m_variables);
    Steps steps;
    for (qsizetype i = commands.size() - 1; i >= commands.size() - count; --i) {
        const Command &command = commands.at(i);
        const auto file = std::make_shared<StepFile>(files.step(command.id));
        const HistoryStep &step = file->step();
        if (std::tie(step.title, step.time, step.numbers) !=
            std::tie(command.title, command.time, command.numbers))
            throw StepLost(file->path()); // that of another session
        steps.append({command, file});
    }
    return steps;
}

// Nothing: the author wants none of it. A renumbering asks nothing.
std::optional<TakeBack::Edited> HistoryCommands::askAboutEdited(Way way, const Steps &steps)
{
    const bool asks = std::any_of(steps.begin(), steps.end(),
                                  [](const Step &step) { return !step.command.numbers; });
    if (!asks)
        return TakeBack::Edited::Stay;
    TakeBack trial(m_variables, TakeBack::Edited::Stay);
    BookTexts book = BookTexts::stored(m_variables);
    for (const Step &step : steps)
        book = trial.before(book, step.file);
    const auto count = static_cast<int>(trial.edited().size());
    if (count == 0)
        return TakeBack::Edited::Stay;
    const QString question =
        way == Way::Back
            ? tr("%n paragraphe(s) modifié(s) depuis : %1 Les remettre aussi comme avant la "
                 "commande ?",
                 nullptr, count)
            : tr("%n paragraphe(s) modifié(s) depuis : %1 Les remettre aussi comme après la "
                 "commande ?",
                 nullptr, count);
    switch (m_prompts.message(question.arg(paragraphNames(trial.edited())), tr("Songez-y"),
                              Prompts::Buttons::YesNoCancel)) {
    case Prompts::Answer::Yes:
        return TakeBack::Edited::AsBefore;
    case Prompts::Answer::No:
        return TakeBack::Edited::Stay;
    default:
        return std::nullopt;
    }
}

// Where the commands together took the numbers from; nothing where none of them renumbers.
std::optional<NumberMap> HistoryCommands::numbersAfter(const Steps &steps)
{
    std::optional<NumberMap> numbers;
    for (const Step &step : steps)
        if (step.command.numbers)
            numbers =
                composed(numbers.value_or(unmovedNumbers()), inverseOf(*step.command.numbers));
    return numbers;
}

void HistoryCommands::apply(Way way, const Steps &steps, TakeBack::Edited edited)
{
    LongWork work(m_report, way == Way::Back ? tr("Annulation...") : tr("Rétablissement..."));
    ParagraphTransaction transaction(m_variables, {{}, numbersAfter(steps)});
    TakeBack takeBack(m_variables, edited);
    BookTexts now = BookTexts::stored(m_variables); // it remembers which texts cannot be read
    BookTexts book = now;
    BookTexts *from = &now;
    CommandHistory history = *m_variables.History;
    int id = history.newId();
    int current = m_variables.CurrentParagraph;
    QList<Command> reverse;
    for (const Step &step : steps) {
        BookTexts before = takeBack.before(*from, step.file);
        reverse.append(noteReverse(step, id++, *from, before));
        current = followed(current, *from, before);
        book = std::move(before);
        from = &book;
    }
    if (way == Way::Back)
        history.takenBack(reverse);
    else
        history.redone(reverse);
    change(transaction, book);
    KeptBytes kept(m_variables, lostTexts(now, book));
    transaction.commit(history);
    kept.textsAreReplaced();
    m_variables.CurrentParagraph = static_cast<qint16>(current);
    tell(way, steps, reverse.last().kept());
}

void HistoryCommands::tell(Way way, const Steps &steps, bool reversible) const
{
    QString told = (way == Way::Back ? tr("Annulé : %1.") : tr("Rétabli : %1."))
                       .arg(steps.last().command.title);
    const auto more = static_cast<int>(steps.size()) - 1;
    if (more > 0)
        told = (way == Way::Back ? tr("Annulé : %1, et %n commande(s) d'après.", nullptr, more)
                                 : tr("Rétabli : %1, et %n commande(s) d'avant.", nullptr, more))
                   .arg(steps.last().command.title);
    if (reversible)
        told += u' ' + (way == Way::Back ? tr("Ctrl+Alt+Y rétablit la commande.")
                                         : tr("Ctrl+Alt+Z annule la commande."));
    m_report.announce(told);
}

// What takes this back in its turn: it leads from the book as it is to the one before the command.
Command HistoryCommands::noteReverse(const Step &step, int id, BookTexts &from, BookTexts &to) const
{
    HistoryStep reverse;
    reverse.title = step.command.title;
    reverse.time = step.command.time;
    reverse.targetPhrase = m_variables.TargetPhrase;
    if (step.command.numbers)
        reverse.numbers = inverseOf(*step.command.numbers);
    reverse.rangeBefore = from.range;
    reverse.rangeAfter = to.range;
    for (int n = 0; n < NumberMap::count(); ++n) {
        const bool moved = reverse.numbers && reverse.numbers->at(n) != n;
        const bool sameText =
            !to.at(n).facts.written ||
            (to.at(n).asStored && from.at(n).asStored && to.at(n).origin == from.at(n).origin);
        ParagraphFacts same = to.at(n).facts;
        same.sha256 = from.at(n).facts.sha256;
        if (!moved && sameText && same == from.at(n).facts)
            continue;
        ParagraphFacts before = from.at(n).facts;
        before.sha256.clear();
        reverse.paragraphs[n] = {before, knownFacts(to.at(n)), 0};
    }
    Command command =
        noteStep(m_variables, id, reverse, [&from](int n) { return from.at(n).text(); });
    command.changed = step.command.changed;
    command.moved = step.command.moved;
    return command;
}

// Each number has one origin, so that no two changes are of the same paragraph.
void HistoryCommands::change(ParagraphTransaction &transaction, const BookTexts &to) const
{
    const auto isFixed = [this](int n) { return m_variables.Unmixable.at(n) == 1; };
    for (int n = 0; n < NumberMap::count(); ++n) {
        const BookTexts::Paragraph &paragraph = to.at(n);
        const ParagraphFacts &facts = paragraph.facts;
        const int from = paragraph.origin;
        const bool leaves = !facts.written && m_variables.Written.at(from) == 1;
        if (leaves)
            transaction.empty(from, to.at(from).facts.fixed);
        if (!facts.written) {
            if (facts.fixed || isFixed(n) || m_variables.Written.at(n) == 1)
                transaction.empty(n, facts.fixed);
            continue;
        }
        const bool same = paragraph.asStored && from == n && facts.fixed == isFixed(n) &&
                          facts.references == m_variables.refIndex.at(n);
        if (!same)
            transaction.change(
                {from, n, storable(paragraph.text()), facts.references, facts.fixed});
    }
    transaction.setRange(to.range);
}

void HistoryCommands::lose(Way way, const StepLost &lost)
{
    CommandHistory history = *m_variables.History;
    const WorkingFiles files(m_variables);
    for (const int id : history.keptDone() + history.keptUndone())
        if (files.step(id) == lost.path())
            history.lose(id);
    m_variables.History = std::make_shared<const CommandHistory>(history);
    tryKeepSession(m_variables);
    removeOtherSteps(m_variables.WorkingFolder, history);
    Q_EMIT m_variables.Events->historyChanged();
    m_report.announce(way == Way::Back ? tr("Cette commande ne peut plus être annulée.")
                                       : tr("Cette commande ne peut plus être rétablie."));
}
