#include "store/AdventureCommands.h"

#include "platform/Failures.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "platform/SameFile.h"
#include "richtext/RichTextBox.h"
#include "store/AdventureChanges.h"
#include "store/AdventureFile.h"
#include "store/AdventureSave.h"
#include "store/CommandHistory.h"
#include "store/DamagedTexts.h"
#include "store/DatedCopies.h"
#include "store/DiscardedChanges.h"
#include "store/LongWork.h"
#include "store/ParagraphStore.h"
#include "store/ReferenceIndex.h"
#include "store/Session.h"
#include "store/SessionRecovery.h"

#include <QFileInfo>

namespace
{
QString adventureFilter()
{
    return AdventureCommands::tr("Fichiers Usmira (*.usm)|*.usm");
}

// A placeholder reserves the name of a new adventure. A file that is there already stays until the
// swap.
void reserve(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        writeWholeFile(path, Placeholder, Durability::Data, Links::Follow);
    else if (!info.isFile() || !info.isWritable())
        throw FileError(FileError::Operation::Write, path, QStringLiteral("cannot be replaced"),
                        info.isFile() ? std::errc::permission_denied : std::errc::is_a_directory);
}

// What lies there until then; null when it cannot be read.
std::shared_ptr<OpenedFile> reserved(const QString &path)
{
    try {
        return std::make_shared<OpenedFile>(path);
    } catch (const FileError &) {
        return nullptr;
    }
}

// A folder whose name is no text can be read from within, by a name without folders; what is saved
// under the whole name would come to lie elsewhere.
void refuseLostName(const Variables &opened, const QString &path)
{
    if (!opened.AdventureFile->isNamed(QFileInfo(path).absoluteFilePath()))
        throw FileError(FileError::Operation::Read, path, QStringLiteral("a name that is no text"),
                        std::errc::invalid_argument);
}
} // namespace

AdventureCommands::AdventureCommands(Variables &variables, Prompts &prompts, AdventureView &view,
                                     WorkReport &report)
    : m_variables(variables), m_prompts(prompts), m_view(view), m_report(report)
{
}

Prompts::Answer AdventureCommands::AskToSave()
{
    return m_prompts.message(tr("ATTENTION : Vous n'avez pas enregistré l'aventure %1. Voulez-vous "
                                "le faire? Sinon, vous perdrez tous les changements!")
                                 .arg(m_variables.AdventureFileName),
                             tr("Rappel amical"), Prompts::Buttons::YesNoCancel);
}

// Whatever cannot be saved, the question comes, and "Non" is a way out.
bool AdventureCommands::LeaveAdventure()
{
    if (!m_variables.AdventureOpen)
        return true;
    const bool paragraphSaved = reportingFailures(m_prompts, [this] {
        SaveCurParg(m_variables, m_view.editingBox(), m_prompts);
        return true;
    });
    if (paragraphSaved && !hasUnsavedChanges(m_variables)) {
        forgetSession(m_variables.WorkingFolder);
        return true;
    }
    switch (AskToSave()) {
    case Prompts::Answer::Yes:
        return Save();
    case Prompts::Answer::No:
        discardChanges(m_variables, m_prompts);
        return true;
    default:
        return false;
    }
}

// After a command that left the adventure but opened no other.
void AdventureCommands::showAgain()
{
    if (m_variables.AdventureOpen)
        showCurrentParagraph();
}

void AdventureCommands::New()
{
    if (!LeaveAdventure())
        return;
    const QString path = m_prompts.saveName(tr("Nouvelle Aventure"), adventureFilter(),
                                            QStringLiteral("usm"), QString());
    if (path.isEmpty() || !NewAdventure(path))
        showAgain();
}

void AdventureCommands::Open()
{
    openFrom([this] { return m_prompts.openName(tr("Ouvrir une Aventure"), adventureFilter()); });
}

void AdventureCommands::OpenInstead(const QString &path)
{
    openFrom([&path] { return path; });
}

void AdventureCommands::openFrom(const std::function<QString()> &choose)
{
    if (!LeaveAdventure())
        return;
    const QString path = choose();
    if (path.isEmpty() || !OpenAdventure(path))
        showAgain();
}

void AdventureCommands::OpenCopy(const DatedCopy &copy)
{
    openFrom([this, &copy] {
        QString path;
        reportingFailures(m_prompts, [&] {
            path = restoreBeside(m_variables, copy);
            return true;
        });
        return path;
    });
}

bool AdventureCommands::NewAdventure(const QString &path)
{
    return reportingFailures(m_prompts, [&] {
        static_cast<void>(finalPath(path)); // refuses a name that is no text
        Variables created = m_variables;
        AdventureContents empty;
        empty.version = CurrentVersion;
        empty.targetPhrase = QStringLiteral(" au ");
        takeOver(created, std::move(empty));
        setNames(created, path);
        reserveAndClaim(created);
        m_variables = std::move(created);
        forgetHistory(m_variables);
        announceAdventure();
        setModified(m_variables);
        Save();
        m_view.LoadParg(1);
        return true;
    });
}

bool AdventureCommands::OpenAdventure(const QString &chosen)
{
    return reportingFailures(m_prompts, [&] {
        Variables opened = m_variables;
        AdventureContents contents = readAdventure(chosen);
        const bool extrasLost = contents.extrasDamaged;
        takeOver(opened, std::move(contents));
        refuseLostName(opened, chosen);
        const QString path = pathToOpen(chosen);
        if (path.isEmpty())
            return false;
        if (path != chosen)
            takeOver(opened, readAdventure(path));
        try {
            if (!opened.CurrentFormat)
                rebuildIndex(opened);
        } catch (const WorkStopped &) {
            m_report.announce(tr("Ouverture arrêtée."));
            return false;
        }
        setNames(opened, path);
        m_variables = std::move(opened);
        forgetHistory(m_variables);
        announceAdventure();
        showCurrentParagraph();
        tellLostExtras(extrasLost);
        tellUnreadable(damagedParagraphs(m_variables), m_prompts);
        return true;
    });
}

// What another window has open is opened as a copy, to be read, or not at all: then it is empty.
QString AdventureCommands::pathToOpen(const QString &path)
{
    if (m_claim.take(path))
        return path;
    const QString copy = pathBeside(path, QStringLiteral("copie"));
    switch (m_prompts.message(
        tr("L'aventure %1 est déjà ouverte dans une autre fenêtre d'Usmira. Voulez-vous en ouvrir "
           "une copie, %2 ? Sinon, vous pourrez la lire, mais pas l'enregistrer tant que l'autre "
           "fenêtre la tient.")
            .arg(QFileInfo(path).fileName(), QFileInfo(copy).fileName()),
        tr("Songez-y"), Prompts::Buttons::YesNoCancel)) {
    case Prompts::Answer::Yes:
        copyFile(path, copy);
        m_claim.take(copy);
        return copy;
    case Prompts::Answer::No:
        m_claim.giveUp();
        return path;
    default:
        return {};
    }
}

// Throws FileError while another window has it.
void AdventureCommands::claim(const QString &path)
{
    if (!m_claim.take(path))
        throw FileError(FileError::Operation::Write, path, QStringLiteral("claimed"),
                        std::errc::device_or_resource_busy);
}

// The session knows of it first, so that a placeholder left by a kill goes.
void AdventureCommands::reserveAndClaim(const Variables &created)
{
    tryKeepSession(created);
    try {
        reserve(created.AdventurePath);
        claim(created.AdventurePath);
    } catch (const FileError &) {
        forgetSession(created.WorkingFolder);
        throw;
    }
}

void AdventureCommands::OpenUnsaved(const UnsavedWork &work)
{
    {
        LongWork rebuilding(m_report, tr("Graphing..."));
        Variables opened = m_variables;
        takeOver(opened, work, rebuilding.progress());
        m_variables = std::move(opened);
    }
    if (!m_claim.take(m_variables.AdventurePath))
        m_claim.giveUp(); // saving asks for it once more
    announceAdventure();
    showCurrentParagraph();
    if (work.box) {
        m_view.editingBox().setRtf(*work.box);
        m_variables.ParagraphDirty = true;
    }
    setModified(m_variables);
    tellLostExtras(work.saved.extrasDamaged && !work.extras);
    tellUnreadable(damagedParagraphs(m_variables), m_prompts);
}

void AdventureCommands::announceAdventure()
{
    m_saved = false;
    m_reserved = m_variables.AdventureFile ? nullptr : reserved(m_variables.AdventurePath);
    m_prompts.beginIn(QFileInfo(m_variables.AdventurePath).absolutePath());
    Q_EMIT m_variables.Events->adventureReplaced();
}

// The adventure opens all the same, and what is lost stays in its dated copy.
void AdventureCommands::tellLostExtras(bool lost)
{
    if (lost)
        m_report.announce(tr("Les départs, les remarques acceptées et les lectures gardés avec "
                             "l'aventure sont illisibles ; ils sont oubliés."));
}

void AdventureCommands::rebuildIndex(Variables &opened)
{
    LongWork work(m_report, tr("Graphing..."), WorkReport::Stopping::OnEscape);
    RebuildReferenceIndex(opened, work.progress());
}

void AdventureCommands::showCurrentParagraph()
{
    reportingFailures(m_prompts, [this] {
        m_view.LoadParg(m_variables.CurrentParagraph);
        return true;
    });
}

bool AdventureCommands::Save()
{
    if (!m_variables.AdventureOpen)
        return true;
    return reportingFailures(m_prompts, [this] {
        const bool paragraphSaved = saveParagraph();
        if (paragraphSaved && !hasUnsavedChanges(m_variables))
            return true;
        claim(m_variables.AdventurePath);
        const auto first = m_saved ? AdventureSave::FirstSave::No : AdventureSave::FirstSave::Yes;
        AdventureSave save(m_variables, m_prompts, first, m_reserved.get());
        if (!writeAndSwap(save, paragraphSaved))
            return false;
        m_saved = true;
        m_reserved.reset();
        m_claim.take(m_variables.AdventurePath); // it is another file now
        save.tellLeftOut();
        if (!save.notKept().isEmpty())
            m_report.announce(save.notKept());
        return true;
    });
}

// False: there is no working folder to write it to. A damaged text that the paragraph would
// replace is kept first, or the adventure must not be saved either.
bool AdventureCommands::saveParagraph()
{
    try {
        SaveCurParg(m_variables, m_view.editingBox(), m_prompts);
        return true;
    } catch (const FileError &) {
        if (m_variables.Damaged.at(m_variables.CurrentParagraph) == 1)
            throw;
        return false;
    }
}

bool AdventureCommands::writeAndSwap(AdventureSave &save, bool paragraphSaved)
{
    LongWork work(m_report, tr("Saving..."));
    return save.run(paragraphSaved ? nullptr : &m_view.editingBox(), work.progress());
}
