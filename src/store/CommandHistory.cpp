#include "store/CommandHistory.h"

#include "platform/SafeFile.h"
#include "store/AdventureEvents.h"
#include "store/Journal.h"
#include "store/Variables.h"
#include "store/WorkReport.h"
#include "store/WorkingFiles.h"

#include <QCoreApplication>
#include <algorithm>

namespace
{
using Command = CommandHistory::Command;

// From the newest back to the first that is not whole.
QList<Command> wholeOf(const WorkingFiles &files, const QList<int> &ids)
{
    QList<Command> commands;
    for (auto id = ids.rbegin(); id != ids.rend(); ++id) {
        try {
            StepFile file(files.step(*id));
            for (const auto &[n, paragraph] : file.step().paragraphs)
                if (paragraph.before.written)
                    file.textBefore(n);
            commands.prepend(CommandHistory::commandOf(*id, file.step(), file.size()));
        } catch (const StepLost &) {
            break;
        }
    }
    return commands;
}
} // namespace

Command CommandHistory::commandOf(int id, const HistoryStep &step, qint64 bytes)
{
    return {id,           step.title, step.time, changedParagraphs(step), movedParagraphs(step),
            step.numbers, bytes,      Step::Kept};
}

void CommandHistory::add(const Command &command)
{
    m_undone.clear();
    append(m_done, command);
    dropOldest();
}

void CommandHistory::takenBack(const QList<Command> &redoing)
{
    for (const Command &command : redoing) {
        m_done.removeLast();
        append(m_undone, command);
    }
    dropOldest();
}

void CommandHistory::redone(const QList<Command> &takingBack)
{
    for (const Command &command : takingBack) {
        m_undone.removeLast();
        append(m_done, command);
    }
    dropOldest();
}

void CommandHistory::restore(const QList<Command> &done, const QList<Command> &undone)
{
    m_whole = false;
    for (const Command &command : done)
        append(m_done, command);
    for (const Command &command : undone)
        append(m_undone, command);
}

void CommandHistory::append(QList<Command> &commands, const Command &command)
{
    m_lastId = std::max(m_lastId, command.id);
    commands.append(command);
    if (!command.kept())
        lose(command.id);
}

void CommandHistory::lose(int id)
{
    for (QList<Command> *commands : {&m_done, &m_undone}) {
        const auto lost = std::find_if(commands->begin(), commands->end(),
                                       [id](const Command &command) { return command.id == id; });
        if (lost == commands->end())
            continue;
        if (lost->kept())
            lost->step = Step::Spoilt;
        for (auto command = commands->begin(); command != lost; ++command)
            if (command->kept())
                command->step = Step::Blocked;
    }
}

// What was taken back longest ago is dropped last: it is next to what the author does now.
void CommandHistory::dropOldest()
{
    qint64 bytes = 0;
    int steps = 0;
    for (QList<Command> *commands : {&m_undone, &m_done}) {
        for (auto command = commands->rbegin(); command != commands->rend(); ++command) {
            if (!command->kept())
                break;
            bytes += command->bytes;
            if (++steps > MostKept || bytes > LargestHistory)
                command->step = Step::TooOld;
        }
    }
}

std::optional<Command> CommandHistory::lastKept(const QList<Command> &commands)
{
    return !commands.isEmpty() && commands.last().kept() ? std::optional(commands.last())
                                                         : std::nullopt;
}

int CommandHistory::countDownTo(const QList<Command> &commands, int id)
{
    int count = 0;
    for (auto command = commands.rbegin(); command != commands.rend() && command->kept();
         ++command) {
        ++count;
        if (command->id == id)
            return count;
    }
    return 0;
}

QList<int> CommandHistory::keptIds(const QList<Command> &commands)
{
    QList<int> ids;
    for (const Command &command : commands)
        if (command.kept())
            ids.append(command.id);
    return ids;
}

void announceDone(const Variables &variables, WorkReport &report, int newId, const QString &words)
{
    QStringList told;
    if (!words.isEmpty())
        told.append(words);
    if (variables.History->newId() != newId) {
        const Command &command = variables.History->done().last();
        if (words.isEmpty())
            told.append(
                QCoreApplication::translate("CommandHistory", "%1 : fait.").arg(command.title));
        told.append(command.kept()
                        ? QCoreApplication::translate("CommandHistory", "Ctrl+Alt+Z l'annule.")
                        : QCoreApplication::translate(
                              "CommandHistory", "Cette commande ne pourra pas être annulée."));
    }
    const bool sentence = words.isEmpty() || words.endsWith(u'.');
    if (!told.isEmpty())
        report.announce(told.join(sentence ? QStringLiteral(" ") : QStringLiteral(" — ")));
}

CommandHistory keptHistory(const QString &workingFolder, const QList<int> &done,
                           const QList<int> &undone)
{
    const WorkingFiles files(workingFolder);
    CommandHistory history;
    history.restore(wholeOf(files, done), wholeOf(files, undone));
    return history;
}

void removeOtherSteps(const QString &workingFolder, const CommandHistory &history)
{
    const WorkingFiles files(workingFolder);
    QStringList kept;
    for (const int id : history.keptDone() + history.keptUndone())
        kept.append(files.step(id));
    const QStringList steps = files.allSteps();
    for (const QString &path : steps)
        if (!kept.contains(path))
            tryRemoveFile(path);
    removeSessionFolder(workingFolder);
}

void forgetHistory(Variables &variables)
{
    variables.History = std::make_shared<const CommandHistory>();
    removeOtherSteps(variables.WorkingFolder, *variables.History);
    Q_EMIT variables.Events->historyChanged();
}
