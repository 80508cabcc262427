#include "store/Session.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "store/Journal.h"
#include "store/ParagraphStore.h"
#include "store/SummedLines.h"
#include "store/WorkingFiles.h"
#include "store/WorkingFolder.h"
#include "store/extras/ExtrasBlock.h"

#include <QFileInfo>

namespace
{
// Far above the longest state, with the longest path and phrase.
constexpr qint64 LargestState = 1024 * 1024;

// Which paragraph was on the screen is not worth a write of its own.
bool saysTheSame(const SessionState &kept, const SessionState &state)
{
    SessionState one = withNext(kept);
    one.current = state.current;
    return one == withNext(state);
}
} // namespace

std::optional<SessionState> keptSession(const QString &workingFolder)
{
    const WorkingFiles files(workingFolder);
    const QFileInfo info(files.state());
    if (QFileInfo(files.session()).isSymLink() || info.isSymLink() || !info.isFile())
        return std::nullopt;
    try {
        return sessionStateOf(readWholeFile(files.state(), LargestState));
    } catch (const FileError &) {
        return std::nullopt;
    }
}

void keepSession(const Variables &variables, const SessionState &state)
{
    const QString &folder = variables.WorkingFolder;
    const std::optional<SessionState> kept = keptSession(folder);
    if (kept && saysTheSame(*kept, state))
        return;
    makeSessionFolder(folder);
    keepExtras(variables);
    writeWholeFile(WorkingFiles(folder).state(), sessionStateBytes(state), Durability::Data,
                   Links::Replace);
    removeOtherExtras(folder);
}

void keepSession(const Variables &variables)
{
    keepSession(variables, sessionState(variables));
}

// Its name says what is in it: one that is there already need not be written once more.
void keepExtras(const Variables &variables)
{
    if (!variables.extrasModified)
        return;
    const QByteArray bytes = bytesOf(variables.extras);
    const QString path = WorkingFiles(variables).extras(sha256(bytes));
    if (!QFileInfo::exists(path))
        writeWholeFile(path, bytes, Durability::Data, Links::Replace);
}

// While a change is being put in place there are two states, and both count.
void removeOtherExtras(const QString &workingFolder)
{
    const WorkingFiles files(workingFolder);
    const QStringList all = files.allExtras();
    if (all.isEmpty() || isAnythingAt(files.nextState()))
        return;
    const std::optional<SessionState> kept = keptSession(workingFolder);
    const QString named = kept && kept->extras ? files.extras(*kept->extras) : QString();
    for (const QString &path : all)
        if (path != named)
            tryRemoveFile(path);
}

std::optional<AdventureExtras> keptExtras(const QString &workingFolder, const SessionState &state)
{
    if (!state.extras)
        return std::nullopt;
    try {
        const QByteArray bytes = readWholeFile(WorkingFiles(workingFolder).extras(*state.extras),
                                               ExtrasHead + LargestExtras);
        return sha256(bytes) == *state.extras ? extrasFrom(bytes) : std::nullopt;
    } catch (const FileError &) {
        return std::nullopt;
    }
}

// While a journal waits, the state is the one before it, and goes with it.
void tryKeepSession(const Variables &variables)
{
    if (!variables.AdventureOpen || variables.JournalLeft)
        return;
    try {
        makeWorkingFolder(variables.WorkingFolder);
        keepSession(variables);
    } catch (const FileError &) {
        return;
    }
}

void noteSave(const Variables &variables, OpenedFile &saved)
{
    if (variables.JournalLeft)
        return;
    SessionState state = sessionState(variables);
    state.saving = saved.identity();
    try {
        keepSession(variables, state);
    } catch (const FileError &) {
        return;
    }
}

void keepTyped(const Variables &variables, int n, const QByteArray &rtf)
{
    writeWholeFile(WorkingFiles(variables).typed(n), rtf, Durability::Data, Links::Replace);
}

void keepBox(const Variables &variables, const RichTextBox &box)
{
    if (!variables.AdventureOpen || !variables.ParagraphDirty || variables.JournalLeft)
        return;
    makeWorkingFolder(variables.WorkingFolder);
    const QByteArray rtf = rtfToSave(box);
    keepSession(variables);
    keepTyped(variables, variables.CurrentParagraph, rtf);
}

void forgetSession(const QString &workingFolder)
{
    const WorkingFiles files(workingFolder);
    tryRemoveFile(files.state());
    const QStringList typed = files.allTyped();
    for (const QString &path : typed)
        tryRemoveFile(path);
    removeOtherExtras(workingFolder);
    removeSessionFolder(workingFolder);
}

void moveSession(const QString &workingFolder, const QString &folder)
{
    const WorkingFiles files(workingFolder);
    moveToFolder(QStringList(files.state()) + files.allTyped() + files.allExtras(), folder);
    removeSessionFolder(workingFolder);
}
