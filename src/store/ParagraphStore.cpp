#include "store/ParagraphStore.h"

#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "richtext/RichTextBox.h"
#include "richtext/TextLimit.h"
#include "store/AdventureChanges.h"
#include "store/Journal.h"
#include "store/ReferenceIndex.h"

#include <QtEndian>
#include <algorithm>

namespace
{
// Files that a change of many paragraphs could not yet put in place come first: what lies under a
// working file's name until then belongs to another paragraph.
void finishLeftJournal(const Variables &variables)
{
    if (variables.JournalLeft)
        finishJournal(variables.WorkingFolder);
}

// In the older files text n ends where text n + 1 begins.
qint64 textLength(const Variables &variables, int n)
{
    if (!variables.CurrentFormat)
        return qint64{variables.SectionOffset.at(n + 1)} - variables.SectionOffset.at(n);
    const QByteArray length =
        variables.AdventureFile->read(qint64{variables.SectionOffset.at(n)} - 5, 4);
    return qFromBigEndian<quint32>(length.constData());
}

void saveText(Variables &variables, RichTextBox &box, int n)
{
    const auto number = static_cast<qint16>(n);
    writeWholeFile(workingFilePath(variables, number), box.rtf(), Durability::Data, Links::Replace);
    variables.Written.at(n) = 1;
    variables.Extracted.at(n) = 1;
    variables.HighestWritten = std::max(variables.HighestWritten, number);
    variables.LowestWritten = std::min(variables.LowestWritten, number);
}

void dropText(Variables &variables, int n)
{
    if (variables.Extracted.at(n) == 1)
        removeFile(workingFilePath(variables, n));
    variables.Extracted.at(n) = 0;
    variables.Written.at(n) = 0;
}
} // namespace

QString filePrefixOf(const QString &adventureFileName)
{
    QString prefix = adventureFileName.left(1);
    for (qsizetype i = 1; i < adventureFileName.size(); ++i) {
        const QChar before = adventureFileName.at(i - 1);
        if (before == u'\'' || before == u' ' || before == u'-')
            prefix += adventureFileName.at(i);
    }
    return prefix + u'-';
}

QString workingFilePath(const Variables &variables, int n)
{
    return workingFilePath(variables.WorkingFolder, variables.FilePrefix, n);
}

QString workingFilePath(const QString &workingFolder, const QString &filePrefix, int n)
{
    return workingFolder + filePrefix + fourDigits(n) + QStringLiteral(".rtf");
}

QByteArray GetParagraphRtf(const Variables &variables, int n)
{
    finishLeftJournal(variables);
    if (variables.Extracted.at(n) == 1)
        return readWholeFile(workingFilePath(variables, n), LargestText);
    if (variables.Written.at(n) == 0 || !variables.AdventureFile)
        return {};
    const qint64 length = textLength(variables, n);
    return variables.AdventureFile->read(qint64{variables.SectionOffset.at(n)} - 1, length);
}

void SaveCurParg(Variables &variables, RichTextBox &box)
{
    if (!variables.ParagraphDirty)
        return;
    finishLeftJournal(variables);
    const int current = variables.CurrentParagraph;
    const QString text = box.text();
    if (text.isEmpty())
        dropText(variables, current);
    else
        saveText(variables, box, current);
    variables.ParagraphDirty = false;
    ScanReferences(variables, text, variables.CurrentParagraph);
    box.select(0, 0);
    setModified(variables);
    Q_EMIT variables.Events->paragraphSaved(current);
}

void DiscardWorkingFiles(Variables &variables)
{
    try {
        finishLeftJournal(variables);
    } catch (const FileError &) {
        // It is tried again before the next working file is written.
    }
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n) {
        auto &extracted = variables.Extracted.at(n);
        if (extracted == 0)
            continue;
        extracted = 0;
        tryRemoveFile(workingFilePath(variables, n));
    }
}
