#include "store/AdventureCommands.h"

#include "platform/Failures.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "richtext/RichTextBox.h"
#include "store/AdventureChanges.h"
#include "store/AdventureFile.h"
#include "store/LongWork.h"
#include "store/ParagraphStore.h"
#include "store/ReferenceIndex.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace
{
QString adventureFilter()
{
    return QStringLiteral("Fichiers Usmira (*.usm)|*.usm");
}

// "Le Loup (autre version).usm" beside "Le Loup.usm", numbered when that is taken.
QString otherVersionPath(const QString &path)
{
    const QFileInfo info(path);
    const QString stem = info.path() + u'/' + info.completeBaseName();
    const QString suffix = info.suffix().isEmpty() ? QString() : u'.' + info.suffix();
    QString backup = stem + QStringLiteral(" (autre version)") + suffix;
    for (int k = 2; QFileInfo::exists(backup); ++k)
        backup = stem + QStringLiteral(" (autre version %1)").arg(k) + suffix;
    return backup;
}

// The paragraphs that are not as the adventure file has them.
QList<int> changedNumbers(const Variables &variables)
{
    QList<int> changed;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        const bool emptied = variables.SectionOffset.at(n) > 0 && variables.Written.at(n) == 0;
        if (variables.Extracted.at(n) == 1 || emptied)
            changed.append(n);
    }
    return changed;
}

// A placeholder claims the name of a new adventure. A file that is there already stays until the
// swap.
void claim(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        writeWholeFile(path, "Nothing yet", Durability::Data, Links::Follow);
    else if (!info.isFile() || !info.isWritable())
        throw FileError(FileError::Operation::Write, path, QStringLiteral("cannot be replaced"),
                        info.isFile() ? std::errc::permission_denied : std::errc::is_a_directory);
}
} // namespace

AdventureCommands::AdventureCommands(Variables &variables, Prompts &prompts, AdventureView &view,
                                     WorkReport &report)
    : m_variables(variables), m_prompts(prompts), m_view(view), m_report(report)
{
}

Prompts::Answer AdventureCommands::AskToSave()
{
    return m_prompts.message(
        QStringLiteral("ATTENTION : Vous n'avez pas enregistré l'aventure ") +
            m_variables.AdventureFileName +
            QStringLiteral(". Voulez-vous le faire? Sinon, vous perdrez tous les changements!"),
        QStringLiteral("Rappel amical"), Prompts::Buttons::YesNoCancel);
}

bool AdventureCommands::LeaveAdventure()
{
    if (!m_variables.AdventureOpen)
        return true;
    return reportingFailures(m_prompts, [this] {
        SaveCurParg(m_variables, m_view.editingBox());
        if (!hasUnsavedChanges(m_variables))
            return true;
        switch (AskToSave()) {
        case Prompts::Answer::Yes:
            return Save();
        case Prompts::Answer::No:
            discardChanges();
            return true;
        default:
            return false;
        }
    });
}

// Back to the adventure as it was last saved. When that can no longer be read, the author is told
// and the changes go all the same: "Non" must always be a way out.
void AdventureCommands::discardChanges()
{
    AdventureContents saved;
    saved.version = CurrentVersion;
    saved.targetPhrase = m_variables.TargetPhrase;
    const bool readable = reportingFailures(m_prompts, [&] {
        if (m_variables.AdventureFile)
            saved = readAdventure(m_variables.AdventureFile);
        return true;
    });
    const QList<int> changed = changedNumbers(m_variables);
    DiscardWorkingFiles(m_variables);
    setSaved(m_variables);
    if (!readable)
        return;
    takeOver(m_variables, std::move(saved));
    if (!m_variables.CurrentFormat)
        RebuildReferenceIndex(m_variables, [](int, int) {});
    Q_EMIT m_variables.Events->textsChanged(changed);
    Q_EMIT m_variables.Events->marksChanged();
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
    const QString path = m_prompts.saveName(QStringLiteral("Nouvelle Aventure"), adventureFilter(),
                                            QStringLiteral("usm"), QString());
    if (path.isEmpty() || !NewAdventure(path))
        showAgain();
}

void AdventureCommands::Open()
{
    openFrom([this] {
        return m_prompts.openName(QStringLiteral("Ouvrir une Aventure"), adventureFilter());
    });
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

bool AdventureCommands::NewAdventure(const QString &path)
{
    return reportingFailures(m_prompts, [&] {
        claim(path);
        AdventureContents empty;
        empty.version = CurrentVersion;
        empty.targetPhrase = QStringLiteral(" au ");
        takeOver(m_variables, std::move(empty));
        nameAdventure(path);
        setModified(m_variables);
        Save();
        m_view.LoadParg(1);
        return true;
    });
}

bool AdventureCommands::OpenAdventure(const QString &path)
{
    return reportingFailures(m_prompts, [&] {
        Variables opened = m_variables;
        takeOver(opened, readAdventure(std::make_shared<OpenedFile>(path)));
        try {
            if (!opened.CurrentFormat)
                rebuildIndex(opened);
        } catch (const WorkStopped &) {
            m_report.announce(
                QCoreApplication::translate("AdventureCommands", "Ouverture arrêtée."));
            return false;
        }
        m_variables = std::move(opened);
        nameAdventure(path);
        showCurrentParagraph();
        return true;
    });
}

void AdventureCommands::nameAdventure(const QString &path)
{
    m_variables.AdventurePath = QFileInfo(path).absoluteFilePath();
    m_variables.AdventureFileName = QFileInfo(path).fileName();
    m_variables.FilePrefix = filePrefixOf(m_variables.AdventureFileName);
    m_prompts.beginIn(QFileInfo(path).absolutePath());
    Q_EMIT m_variables.Events->adventureReplaced();
}

void AdventureCommands::rebuildIndex(Variables &opened)
{
    LongWork work(m_report, QStringLiteral("Graphing..."), WorkReport::Stopping::OnEscape);
    RebuildReferenceIndex(opened, work.progress());
}

// A damaged current paragraph is reported, and the next number that can be shown stands in for it:
// a box that shows one paragraph while another is current would overwrite that one.
void AdventureCommands::showCurrentParagraph()
{
    const int current = m_variables.CurrentParagraph;
    const auto show = [this](int n) {
        m_view.LoadParg(n);
        return true;
    };
    if (reportingFailures(m_prompts, [&] { return show(current); }))
        return;
    for (int n = current + 1; n <= current + Variables::LastParagraph; ++n) {
        try {
            show(n % (Variables::LastParagraph + 1));
            return;
        } catch (const UsmiraError &) {
            continue;
        }
    }
}

bool AdventureCommands::Save()
{
    if (!m_variables.AdventureOpen)
        return true;
    return reportingFailures(m_prompts, [this] {
        SaveCurParg(m_variables, m_view.editingBox());
        return !hasUnsavedChanges(m_variables) || writeAndSwap();
    });
}

// Nothing is deleted before the new file is in place, and nothing in memory changes before either:
// after a failure the next attempt finds all it needs.
bool AdventureCommands::writeAndSwap()
{
    LongWork work(m_report, QStringLiteral("Saving..."));
    const QString temporary =
        m_variables.WorkingFolder + QStringLiteral("Usmira Temporary Save File.xyz");
    AdventureContents saved =
        writing(temporary, [&] { return writeAdventure(m_variables, temporary, work.progress()); });
    const QString words =
        QStringLiteral("Fichier enregistré, incapable d'échanger avec l'original.");
    try {
        if (!mayReplace()) {
            swapFailed(words);
            return false;
        }
        moveIntoPlace(temporary, m_variables.AdventurePath);
    } catch (const FileError &error) {
        swapFailed(failureText(words, error));
        return false;
    }
    // The adventure is saved: nothing below may fail. The file that was read back stays the one
    // that is read; what it is asked here is answered once, instead of at each later read.
    saved.file->isStillAt(m_variables.AdventurePath);
    m_variables.SectionOffset = saved.sectionOffset;
    m_variables.AdventureFile = saved.file;
    m_variables.CurrentFormat = true;
    DiscardWorkingFiles(m_variables);
    setSaved(m_variables);
    return true;
}

// Asks when the adventure on disk is no longer the one that was opened, and keeps a copy of it.
bool AdventureCommands::mayReplace()
{
    const QString path = m_variables.AdventurePath;
    if (!m_variables.AdventureFile || !QFileInfo(path).isFile() ||
        m_variables.AdventureFile->isStillAt(path))
        return true;
    const QString backup = otherVersionPath(path);
    const Prompts::Answer answer = m_prompts.message(
        QStringLiteral("Un autre programme a modifié l'aventure ") + m_variables.AdventureFileName +
            QStringLiteral(" depuis son ouverture. Voulez-vous la remplacer par la vôtre ? L'autre "
                           "version sera gardée sous le nom ") +
            QFileInfo(backup).fileName() + QStringLiteral("."),
        QStringLiteral("Attention !"), Prompts::Buttons::YesNo);
    if (answer != Prompts::Answer::Yes)
        return false;
    copyFile(path, backup);
    return true;
}

void AdventureCommands::swapFailed(const QString &text)
{
    m_prompts.message(text, QStringLiteral("BUG"), Prompts::Buttons::Ok);
}
