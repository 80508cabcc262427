#include "store/ParagraphStore.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "richtext/RichTextBox.h"
#include "richtext/TextLimit.h"
#include "store/AdventureChanges.h"
#include "store/DamagedTexts.h"
#include "store/Journal.h"
#include "store/ReferenceIndex.h"
#include "store/Session.h"
#include "store/WorkingFiles.h"
#include "store/WorkingFolder.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <functional>

namespace
{
// A file of that name counts for nothing, and must not be taken for the one that is coming. It may
// be what a start of the program could not set aside.
void clearName(const WorkingFiles &files, const QString &path)
{
    if (QFileInfo(path).isFile())
        moveToFolder({path}, files.newRecoveryFolder(QDateTime::currentDateTime()));
    else
        removeFile(path);
}

// The text is written as what was last typed and then becomes the working file, so that after a
// kill the newer of the two is never in doubt.
void saveText(Variables &variables, const QByteArray &rtf, int n)
{
    makeWorkingFolder(variables.WorkingFolder);
    const WorkingFiles files(variables);
    SessionState state = sessionState(variables);
    if (variables.Extracted.at(n) == 0) {
        clearName(files, files.text(n));
        state.next = n;
    }
    keepSession(variables, state);
    keepTyped(variables, n, rtf);
    renameFile(files.typed(n), files.text(n));
    variables.Extracted.at(n) = 1;
}

// What was last typed says that the box is empty until nothing else is left of the text.
void dropText(Variables &variables, const QByteArray &rtf, int n)
{
    if (variables.Written.at(n) == 0)
        return;
    makeWorkingFolder(variables.WorkingFolder);
    keepSession(variables);
    keepTyped(variables, n, rtf);
    SessionState state = sessionState(variables);
    state.written.reset(static_cast<std::size_t>(n));
    state.extracted.reset(static_cast<std::size_t>(n));
    state.emptied.insert(std::lower_bound(state.emptied.begin(), state.emptied.end(), n), n);
    keepSession(variables, state);
    if (variables.Extracted.at(n) == 1)
        removeFile(WorkingFiles(variables).text(n));
    variables.Extracted.at(n) = 0;
}

void save(Variables &variables, RichTextBox &box, const std::function<void(int)> &allowReplacing)
{
    if (!variables.ParagraphDirty)
        return;
    const int current = variables.CurrentParagraph;
    const QString text = box.text();
    const bool damaged = variables.Damaged.at(current) == 1;
    const bool leftAlone = damaged && text.isEmpty();
    if (!leftAlone) {
        const QByteArray rtf = rtfToSave(box);
        finishLeftJournal(variables);
        if (damaged) {
            allowReplacing(current);
            variables.Damaged.at(current) = 0; // its bytes are kept
        }
        if (text.isEmpty())
            dropText(variables, rtf, current);
        else
            saveText(variables, rtf, current);
        noteText(variables, current, text);
    }
    variables.ParagraphDirty = false;
    tryRemoveFile(WorkingFiles(variables).typed(current));
    box.select(0, 0);
    if (leftAlone)
        return;
    setModified(variables);
    Q_EMIT variables.Events->paragraphSaved(current);
}

// No working file counts any more; what becomes of each is the caller's choice.
void dropAll(Variables &variables, const std::function<void(const QString &)> &dispose)
{
    tryFinishLeftJournal(variables);
    for (int n = 0; n < variables.Extracted.count(); ++n) {
        if (variables.Extracted.at(n) == 1)
            dispose(extractedTextPath(variables, n));
        variables.Extracted.at(n) = 0;
    }
}
} // namespace

void SaveCurParg(Variables &variables, RichTextBox &box, Prompts &prompts)
{
    save(variables, box, [&](int n) { askToReplaceDamaged(variables, n, prompts); });
}

void SaveCurParg(Variables &variables, RichTextBox &box)
{
    save(variables, box, [](int) { throw NotAllowed(); });
}

QByteArray rtfToSave(const RichTextBox &box)
{
    QByteArray rtf = box.rtf();
    if (rtf.size() > LargestText)
        throw LimitError(QStringLiteral("bytes of a text"), LargestText);
    return rtf;
}

void noteText(Variables &variables, int n, const QString &text)
{
    const auto number = static_cast<qint16>(n);
    variables.Written.at(n) = text.isEmpty() ? 0 : 1;
    if (!text.isEmpty()) {
        variables.HighestWritten = std::max(variables.HighestWritten, number);
        variables.LowestWritten = std::min(variables.LowestWritten, number);
    }
    ScanReferences(variables, text, n);
}

void DiscardWorkingFiles(Variables &variables)
{
    dropAll(variables, [](const QString &path) { tryRemoveFile(path); });
}

QString setWorkingFilesAside(Variables &variables)
{
    const WorkingFiles files(variables);
    const QString folder = files.newRecoveryFolder(QDateTime::currentDateTime());
    if (!QDir().mkpath(folder))
        return variables.WorkingFolder;
    const auto move = [&folder](const QString &path) {
        try {
            moveToFolder({path}, folder);
        } catch (const FileError &) {
            return; // it stays
        }
    };
    // The state first: without it the rest counts for nothing.
    const QStringList session = QStringList(files.state()) + files.allTyped();
    std::for_each(session.begin(), session.end(), move);
    dropAll(variables, move);
    return folder;
}
