#include "store/AdventureSave.h"

#include "platform/Failures.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "richtext/RichTextBox.h"
#include "store/AdventureChanges.h"
#include "store/DatedCopies.h"
#include "store/ParagraphStore.h"
#include "store/ReplaceQuestions.h"
#include "store/Session.h"
#include "store/WorkingFiles.h"
#include "store/WorkingFolder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QScopeGuard>

AdventureSave::AdventureSave(Variables &variables, Prompts &prompts, FirstSave first,
                             OpenedFile *reserved)
    : m_variables(variables), m_prompts(prompts), m_first(first), m_reserved(reserved),
      m_candidate(variables)
{
}

bool AdventureSave::run(RichTextBox *onScreen, const Progress &progress)
{
    if (onScreen != nullptr)
        takeTextOf(*onScreen);
    write(progress);
    if (!swap())
        return false;
    takeOverSaved();
    if (onScreen != nullptr)
        onScreen->select(0, 0);
    announce();
    return true;
}

void AdventureSave::takeTextOf(const RichTextBox &box)
{
    m_onScreen = rtfToSave(box);
    noteText(m_candidate, m_candidate.CurrentParagraph, box.text());
}

std::optional<QByteArray> AdventureSave::text(int n)
{
    if (m_onScreen && n == m_candidate.CurrentParagraph)
        return m_onScreen;
    return readableText(m_variables, n, m_leftOut);
}

// Where the working folder cannot be written, the folder of the adventure still may.
void AdventureSave::write(const Progress &progress)
{
    makeWorkingFolder(m_variables.WorkingFolder);
    try {
        writeTo(m_variables.WorkingFolder, progress);
    } catch (const FileError &) {
        writeTo(adventureFolder(), progress);
    }
}

QString AdventureSave::adventureFolder() const
{
    return QFileInfo(m_variables.AdventurePath).absolutePath() + u'/';
}

void AdventureSave::writeTo(const QString &folder, const Progress &progress)
{
    m_leftOut.clear();
    m_temporary = WorkingFiles(folder).temporarySave();
    m_saved = writing(m_temporary, [&] {
        return writeAdventure(
            m_candidate, m_temporary, [this](int n) { return text(n); }, progress);
    });
}

bool AdventureSave::swap()
{
    const QString words = QCoreApplication::translate(
        "AdventureSave", "Fichier enregistré, incapable d'échanger avec l'original.");
    try {
        OpenedFile *const expected =
            m_variables.AdventureFile ? m_variables.AdventureFile.get() : m_reserved;
        const ReplaceAnswer answer = askToReplace(m_variables, expected, m_prompts);
        if (!answer.allowed) {
            swapFailed(words);
            return false;
        }
        KeptBytes kept(m_variables, m_leftOut,
                       answer.otherVersionKept ? KeptBytes::WholeFile::IsKept
                                               : KeptBytes::WholeFile::NotKept);
        std::optional<KeptVersion> version;
        if (m_first == FirstSave::Yes)
            version.emplace(m_variables);
        noteSave(m_variables, *m_saved.file);
        takePlaceOf(expected);
        if (version) {
            version->isReplaced();
            m_notKept = version->failure();
        }
        m_whereKept = kept.whereKept();
        kept.textsAreReplaced();
    } catch (const FileError &error) {
        swapFailed(failureText(words, error));
        return false;
    }
    // The adventure is saved: nothing below may fail. The file that was read back stays the one
    // that is read; what it is asked here is answered once, instead of at each later read.
    m_saved.file->setPath(m_variables.AdventurePath);
    m_saved.file->comeBack();
    m_saved.file->isStillAt(m_variables.AdventurePath);
    return true;
}

void AdventureSave::takePlaceOf(OpenedFile *replaced)
{
    if (replaced != nullptr)
        replaced->giveWay(m_variables.AdventurePath);
    m_saved.file->giveWay(m_temporary);
    auto comeBack = qScopeGuard([replaced] {
        if (replaced != nullptr)
            replaced->comeBack();
    });
    moveIntoPlace(m_temporary, m_variables.AdventurePath);
    comeBack.dismiss();
}

void AdventureSave::swapFailed(const QString &text)
{
    m_prompts.message(text, QCoreApplication::translate("AdventureSave", "BUG"),
                      Prompts::Buttons::Ok);
}

void AdventureSave::takeOverSaved()
{
    m_candidate.SectionOffset = m_saved.sectionOffset;
    m_candidate.AdventureFile = m_saved.file;
    m_candidate.CurrentFormat = true;
    for (const int n : std::as_const(m_leftOut)) {
        m_candidate.Written.at(n) = 0;
        m_candidate.refIndex.at(n).clear();
    }
    m_candidate.Damaged.fill(0);
    tryRemoveFile(WorkingFiles(adventureFolder()).temporarySave()); // of an earlier attempt
    DiscardWorkingFiles(m_candidate);
    forgetSession(m_candidate.WorkingFolder);
    m_candidate.ParagraphDirty = false;
    m_variables = m_candidate;
}

void AdventureSave::announce() const
{
    setSaved(m_variables);
    if (m_onScreen)
        Q_EMIT m_variables.Events->paragraphSaved(m_variables.CurrentParagraph);
    if (!m_leftOut.isEmpty())
        Q_EMIT m_variables.Events->textsChanged(m_leftOut);
}

void AdventureSave::tellLeftOut() const
{
    if (m_leftOut.isEmpty())
        return;
    const QString text = QCoreApplication::translate(
        "AdventureSave", "Paragraphes illisibles, non enregistrés : %1");
    m_prompts.notice(text.arg(paragraphNames(m_leftOut)) + m_whereKept, QStringLiteral("BUG"));
}
