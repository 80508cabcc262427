#include "store/ParagraphStore.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "richtext/RichTextBox.h"
#include "richtext/TextLimit.h"
#include "store/AdventureChanges.h"
#include "store/DamagedTexts.h"
#include "store/Journal.h"
#include "store/ReferenceIndex.h"
#include "store/WorkingFiles.h"
#include "store/WorkingFolder.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <functional>

namespace
{
void saveText(Variables &variables, const QByteArray &rtf, int n)
{
    makeWorkingFolder(variables.WorkingFolder);
    writeWholeFile(WorkingFiles(variables).text(n), rtf, Durability::Data, Links::Replace);
    variables.Extracted.at(n) = 1;
}

void dropText(Variables &variables, int n)
{
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
            dropText(variables, current);
        else
            saveText(variables, rtf, current);
        noteText(variables, current, text);
    }
    variables.ParagraphDirty = false;
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
    const QString folder = WorkingFiles(variables).newRecoveryFolder(QDateTime::currentDateTime());
    if (!QDir().mkpath(folder))
        return variables.WorkingFolder;
    dropAll(variables, [&folder](const QString &path) {
        try {
            renameFile(path, folder + u'/' + QFileInfo(path).fileName());
        } catch (const FileError &) {
            return; // it stays
        }
    });
    return folder;
}
