#include "store/DiscardedChanges.h"

#include "platform/Errors.h"
#include "platform/Prompts.h"
#include "store/AdventureChanges.h"
#include "store/AdventureFile.h"
#include "store/CommandHistory.h"
#include "store/ParagraphStore.h"
#include "store/ReferenceIndex.h"
#include "store/Session.h"
#include "store/WorkingFiles.h"

#include <QCoreApplication>

namespace
{
// The paragraphs that are not as the adventure file has them.
QList<int> changedNumbers(const Variables &variables)
{
    QList<int> changed;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        const bool emptied = variables.SectionOffset.at(n) > 0 && variables.Written.at(n) == 0;
        const bool onScreen = variables.ParagraphDirty && n == variables.CurrentParagraph;
        if (variables.Extracted.at(n) == 1 || emptied || onScreen)
            changed.append(n);
    }
    return changed;
}

// The adventure as it was saved can no longer be read.
void keepUnsaved(Variables &variables, Prompts &prompts)
{
    const QList<int> changed = changedNumbers(variables);
    forgetHistory(variables);
    const QString folder = setWorkingFilesAside(variables);
    setSaved(variables);
    variables.ParagraphDirty = false;
    try {
        takeOver(variables, readAdventure(variables.AdventureFile));
    } catch (const UsmiraError &) {
        // What can be read of it is still shown.
    }
    const QString text = QCoreApplication::translate(
        "DiscardedChanges", "L'aventure %1 ne peut plus être relue. Les paragraphes non "
                            "enregistrés sont rangés dans le dossier %2.");
    prompts.message(text.arg(variables.AdventureFileName, folder), QStringLiteral("BUG"),
                    Prompts::Buttons::Ok);
    Q_EMIT variables.Events->textsChanged(changed);
    Q_EMIT variables.Events->marksChanged();
}
} // namespace

void discardChanges(Variables &variables, Prompts &prompts)
{
    AdventureContents saved;
    saved.version = CurrentVersion;
    saved.targetPhrase = variables.TargetPhrase;
    const bool neverSaved = !variables.AdventureFile;
    try {
        if (!neverSaved)
            saved = readAdventure(variables.AdventurePath);
    } catch (const UsmiraError &) {
        keepUnsaved(variables, prompts);
        return;
    }
    const QList<int> changed = changedNumbers(variables);
    forgetHistory(variables);
    // Killed from here on, the program sets aside what is still there: some of it is not offered.
    forgetSession(variables.WorkingFolder);
    DiscardWorkingFiles(variables);
    setSaved(variables);
    takeOver(variables, std::move(saved));
    if (!variables.CurrentFormat)
        RebuildReferenceIndex(variables, [](int, int) {});
    Q_EMIT variables.Events->textsChanged(changed);
    Q_EMIT variables.Events->marksChanged();
    Q_EMIT variables.Events->extrasChanged();
}
