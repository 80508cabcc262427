#include "store/HistoryNotes.h"

#include "platform/SafeFile.h"
#include "store/AdventureEvents.h"
#include "store/CommandHistory.h"
#include "store/Journal.h"
#include "store/ParagraphTexts.h"
#include "store/Session.h"
#include "store/WorkingFiles.h"
#include "store/WorkingFolder.h"

#include <QFileInfo>
#include <algorithm>

namespace
{
// The paragraph is written when its text is to have a character, as when it is saved from the box.
ParagraphFacts loadedState(const Variables &variables, const QByteArray &rtf,
                           const QString &references)
{
    const bool fixed = variables.Unmixable.at(variables.CurrentParagraph) == 1;
    return rtf.isEmpty() ? ParagraphFacts{false, fixed, {}, {}}
                         : ParagraphFacts{true, fixed, textSha256(rtf), references};
}
} // namespace

CommandHistory::Command noteStep(const Variables &variables, int id, HistoryStep &step,
                                 const std::function<QByteArray(int)> &textBefore)
{
    CommandHistory::Command command;
    try {
        makeSessionFolder(variables.WorkingFolder);
        const QString path = WorkingFiles(variables).step(id);
        const qint64 size = writeStep(path, QFileInfo(path).fileName(), step, textBefore);
        command = CommandHistory::commandOf(id, step, size);
    } catch (const UsmiraError &) {
        command = CommandHistory::commandOf(id, step, 0);
        command.step = CommandHistory::Step::Unwritten;
    }
    return command;
}

// A command without a step keeps those before it from being taken back, as their numbers and texts
// are no longer the ones that they left.
CommandHistory historyWith(const Variables &variables, HistoryStep step,
                           const std::function<QByteArray(int)> &textBefore)
{
    CommandHistory history = *variables.History;
    const int id = history.newId();
    const CommandHistory::Command command = noteStep(variables, id, step, textBefore);
    if (command.changed > 0)
        history.add(command);
    return history;
}

ParagraphFacts storedState(const Variables &variables, int n)
{
    ParagraphFacts state{
        variables.Written.at(n) == 1, variables.Unmixable.at(n) == 1, {}, variables.refIndex.at(n)};
    if (state.written)
        state.sha256 = textSha256(GetParagraphRtf(variables, n));
    return state;
}

void noteLoaded(Variables &variables, const LoadedParagraph &loaded)
{
    const int n = variables.CurrentParagraph;
    HistoryStep step;
    step.title = loaded.title;
    step.time = QDateTime::currentDateTime();
    step.targetPhrase = variables.TargetPhrase;
    step.rangeBefore = {variables.LowestWritten, variables.HighestWritten};
    step.rangeAfter = step.rangeBefore;
    if (!loaded.after.isEmpty())
        step.rangeAfter = {std::min(step.rangeBefore.lowest, n),
                           std::max(step.rangeBefore.highest, n)};
    step.paragraphs[n] = {loadedState(variables, loaded.before, loaded.referencesBefore),
                          loadedState(variables, loaded.after, loaded.referencesAfter), 0};
    step.paragraphs[n].before.written |= !loaded.readable;
    const auto before = [&loaded](int /*n*/) {
        if (!loaded.readable)
            throw FormatError(0, QStringLiteral("a text"));
        return loaded.before;
    };
    makeWorkingFolder(variables.WorkingFolder);
    variables.History =
        std::make_shared<const CommandHistory>(historyWith(variables, step, before));
    removeOtherSteps(variables.WorkingFolder, *variables.History);
    tryKeepSession(variables);
    Q_EMIT variables.Events->historyChanged();
}

void amendLast(Variables &variables, int n)
{
    const std::optional<CommandHistory::Command> last = variables.History->nextToTakeBack();
    if (!last)
        return;
    const WorkingFiles files(variables);
    const QString path = files.step(last->id);
    const QString amended = files.step(variables.History->newId());
    try {
        StepFile file(path);
        HistoryStep step = file.step();
        const auto paragraph = step.paragraphs.find(n);
        if (paragraph == step.paragraphs.end() ||
            paragraph->second.after == storedState(variables, n))
            return;
        paragraph->second.after = storedState(variables, n);
        writeStep(amended, QFileInfo(path).fileName(), step,
                  [&](int k) { return file.textBefore(k); });
        renameFile(amended, path);
    } catch (const UsmiraError &) {
        tryRemoveFile(amended);
    }
}
