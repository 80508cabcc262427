#include "store/SessionRecovery.h"

#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "platform/Prompts.h"
#include "platform/SafeFile.h"
#include "richtext/RtfPlainText.h"
#include "richtext/RtfTokenizer.h"
#include "richtext/TextLimit.h"
#include "store/DamagedTexts.h"
#include "store/Journal.h"
#include "store/ReferenceIndex.h"
#include "store/Session.h"
#include "store/WorkingFiles.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace
{
void tell(Prompts &prompts, const QString &text)
{
    prompts.notice(text, QCoreApplication::translate("SessionRecovery", "Songez-y"));
}

void tellLeftovers(Prompts &prompts, const QString &folder)
{
    tell(prompts, QCoreApplication::translate(
                      "SessionRecovery", "Des fichiers de travail laissés par un arrêt brusque "
                                         "d'Usmira sont rangés dans le dossier %1.")
                      .arg(QDir::toNativeSeparators(folder)));
}

// The author has given it up himself, or the program was killed in between.
void tellUnplaced(Prompts &prompts, const QString &folder)
{
    tell(prompts, QCoreApplication::translate(
                      "SessionRecovery", "Une aventure enregistrée qui n'a pas pris la place de "
                                         "l'original est rangée dans le dossier %1.")
                      .arg(QDir::toNativeSeparators(folder)));
}

bool has(const SessionState::Marks &marks, int n)
{
    return marks.test(static_cast<std::size_t>(n));
}

void clear(SessionState::Marks &marks, int n)
{
    marks.reset(static_cast<std::size_t>(n));
}

bool isText(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() && !info.isSymLink();
}

// One look at a working folder.
class Recovery
{
public:
    Recovery(const QString &workingFolder, Prompts &prompts)
        : m_prompts(prompts), m_files(workingFolder),
          m_folder(m_files.newRecoveryFolder(QDateTime::currentDateTime()))
    {
    }

    std::optional<UnsavedWork> offer();

private:
    enum class Adventure { AsOpened, AsSaved, Other };

    std::optional<UnsavedWork> offer(const SessionState &kept);
    Adventure lookAtAdventure();
    bool readNeverWritten();
    void settle();
    void readBox();
    void moveStrays();
    void finishSave();
    void dropSession();
    void setAllAside();
    int count() const;
    bool isAnythingUnsaved() const;
    bool isWanted();

    WorkingFiles ownFiles() const
    {
        return WorkingFiles(m_files.folder(), m_work.state.filePrefix());
    }
    QString name() const { return QFileInfo(m_work.state.adventurePath).fileName(); }
    QString folder() const { return QDir::toNativeSeparators(m_folder); }

    Prompts &m_prompts;
    WorkingFiles m_files;
    QString m_folder; // where things go that are set aside; made when there are any
    UnsavedWork m_work;
    bool m_strays = false;
};

std::optional<UnsavedWork> Recovery::offer()
{
    const std::optional<SessionState> kept = keptSession(m_files.folder());
    if (kept)
        return offer(*kept);
    const bool anything = isAnythingAt(m_files.state()) || !m_files.allTyped().isEmpty() ||
                          !m_files.allTexts().isEmpty();
    const bool saved = isAnythingAt(m_files.temporarySave());
    if (anything || saved)
        setAllAside();
    if (anything)
        tellLeftovers(m_prompts, m_folder);
    else if (saved)
        tellUnplaced(m_prompts, m_folder);
    return std::nullopt;
}

std::optional<UnsavedWork> Recovery::offer(const SessionState &kept)
{
    m_work.state = kept;
    switch (lookAtAdventure()) {
    case Adventure::AsSaved:
        finishSave();
        return std::nullopt;
    case Adventure::Other:
        setAllAside();
        tell(m_prompts, QCoreApplication::translate(
                            "SessionRecovery",
                            "L'aventure %1 a changé ou disparu depuis l'arrêt brusque d'Usmira. "
                            "Les paragraphes non enregistrés sont rangés dans le dossier %2.")
                            .arg(name(), folder()));
        return std::nullopt;
    case Adventure::AsOpened:
        break;
    }
    settle();
    readBox();
    m_work.extras = keptExtras(m_files.folder(), m_work.state);
    moveStrays();
    if (!isAnythingUnsaved()) {
        dropSession();
        return std::nullopt;
    }
    if (isWanted())
        return m_work;
    setAllAside();
    dropSession();
    return std::nullopt;
}

Recovery::Adventure Recovery::lookAtAdventure()
{
    const SessionState &state = m_work.state;
    if (!QFileInfo::exists(state.adventurePath))
        return !state.opened && readNeverWritten() ? Adventure::AsOpened : Adventure::Other;
    try {
        const auto file = std::make_shared<OpenedFile>(state.adventurePath);
        if (state.saving == file->identity())
            return Adventure::AsSaved;
        if (!state.opened)
            return readNeverWritten() ? Adventure::AsOpened : Adventure::Other;
        if (state.opened != file->identity())
            return Adventure::Other;
        m_work.saved = readAdventure(file);
        return Adventure::AsOpened;
    } catch (const UsmiraError &) {
        return Adventure::Other;
    }
}

// Nothing but the placeholder may lie under the name of an adventure that was never written.
bool Recovery::readNeverWritten()
{
    const QString &path = m_work.state.adventurePath;
    if (QFileInfo::exists(path) && !isPlaceholder(path))
        return false;
    m_work.saved.version = CurrentVersion;
    return true;
}

// What was being done to a single paragraph is done or not done now. A working file that somebody
// has taken away leaves the text of the adventure.
void Recovery::settle()
{
    SessionState &state = m_work.state;
    const WorkingFiles files = ownFiles();
    if (state.next && isText(files.text(*state.next)))
        state = withNext(state);
    state.next.reset();
    for (const int n : std::as_const(state.emptied))
        removeFile(files.text(n));
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        if (has(state.extracted, n) && !isText(files.text(n)))
            clear(state.extracted, n);
        if (!has(state.extracted, n) && m_work.saved.written.at(n) == 0)
            clear(state.written, n);
    }
}

// Of several the newest is the one that was on the screen; the others, and what is no text, are set
// aside.
void Recovery::readBox()
{
    QStringList typed = m_files.allTyped();
    std::sort(typed.begin(), typed.end(), [](const QString &one, const QString &other) {
        return QFileInfo(one).lastModified() < QFileInfo(other).lastModified();
    });
    while (!typed.isEmpty() && !m_work.box) {
        const QString newest = typed.last();
        try {
            const QByteArray rtf = readWholeFile(newest, LargestText);
            if (!isWholeRtf(rtf))
                break;
            rtfToPlainText(rtf);
            m_work.box = rtf;
            m_work.state.current = WorkingFiles::numberOf(newest);
            typed.removeLast();
        } catch (const UsmiraError &) {
            break;
        }
    }
    m_strays = m_strays || !typed.isEmpty();
    if (!typed.isEmpty())
        moveToFolder(typed, m_folder);
}

// Working files that this session knows nothing of.
void Recovery::moveStrays()
{
    QStringList strays = m_files.allTexts();
    const WorkingFiles files = ownFiles();
    strays.removeIf([&](const QString &path) {
        const int n = WorkingFiles::numberOf(path);
        return has(m_work.state.extracted, n) && QFileInfo(path) == QFileInfo(files.text(n));
    });
    if (!strays.isEmpty())
        moveToFolder(strays, m_folder);
    m_strays = m_strays || !strays.isEmpty();
    if (m_strays)
        tellLeftovers(m_prompts, m_folder);
}

void Recovery::finishSave()
{
    const SessionState state = withNext(m_work.state);
    const WorkingFiles files = ownFiles();
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        if (has(state.extracted, n))
            removeFile(files.text(n));
    for (const int n : state.emptied)
        removeFile(files.text(n));
    removeFile(files.temporarySave());
    dropSession();
}

// The state goes last: with it, what is still there is understood once more.
void Recovery::dropSession()
{
    const QString &path = m_work.state.adventurePath;
    if (!m_work.state.opened && isPlaceholder(path))
        removeFile(path);
    const QStringList typed = m_files.allTyped();
    for (const QString &box : typed)
        removeFile(box);
    const QStringList extras = m_files.allExtras();
    for (const QString &extra : extras)
        removeFile(extra);
    removeFile(m_files.state());
    removeSessionFolder(m_files.folder());
}

void Recovery::setAllAside()
{
    moveSession(m_files.folder(), m_folder);
    moveToFolder(m_files.allTexts() + QStringList(m_files.temporarySave()), m_folder);
}

int Recovery::count() const
{
    const SessionState &state = m_work.state;
    int paragraphs = 0;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        const bool changed = has(state.extracted, n) ||
                             (has(state.written, n) ? 1 : 0) != m_work.saved.written.at(n);
        const bool onScreen = m_work.box && n == state.current;
        paragraphs += changed || onScreen ? 1 : 0;
    }
    return paragraphs;
}

bool Recovery::isAnythingUnsaved() const
{
    bool marks = false;
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        marks = marks || (has(m_work.state.unmixable, n) ? 1 : 0) != m_work.saved.unmixable.at(n);
    const bool neverWritten = !m_work.state.opened;
    const QString phrase = neverWritten ? QStringLiteral(" au ") : m_work.saved.targetPhrase;
    const bool extras = m_work.extras && *m_work.extras != m_work.saved.extras;
    return marks || extras || phrase != m_work.state.targetPhrase || count() > 0;
}

bool Recovery::isWanted()
{
    const QString text = QCoreApplication::translate(
        "SessionRecovery", "Usmira s'est arrêté brusquement. Paragraphes non enregistrés de "
                           "l'aventure %1 : %2. Voulez-vous les récupérer ? Sinon, ils seront "
                           "rangés dans le dossier %3.");
    return m_prompts.message(text.arg(name(), QString::number(count()), folder()),
                             QCoreApplication::translate("SessionRecovery", "Rescapés"),
                             Prompts::Buttons::YesNo) == Prompts::Answer::Yes;
}
} // namespace

std::optional<UnsavedWork> offerUnsavedWork(const QString &workingFolder, Prompts &prompts)
{
    std::optional<UnsavedWork> work = Recovery(workingFolder, prompts).offer();
    if (work)
        work->history = keptHistory(workingFolder, work->state.done, work->state.undone);
    removeOtherSteps(workingFolder, work ? work->history : CommandHistory());
    removeOtherExtras(workingFolder);
    return work;
}

void takeOver(Variables &variables, const UnsavedWork &work, const Progress &progress)
{
    const SessionState &state = work.state;
    const bool otherPhrase = work.saved.targetPhrase != state.targetPhrase;
    takeOver(variables, work.saved);
    setNames(variables, state.adventurePath);
    variables.History = std::make_shared<const CommandHistory>(work.history);
    variables.extrasModified = work.extras.has_value();
    if (work.extras)
        variables.extras = *work.extras;
    variables.TargetPhrase = state.targetPhrase;
    variables.LowestWritten = static_cast<qint16>(state.lowest);
    variables.HighestWritten = static_cast<qint16>(state.highest);
    variables.CurrentParagraph = static_cast<qint16>(state.current);
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        const bool extracted = has(state.extracted, n);
        variables.Written.at(n) = has(state.written, n) ? 1 : 0;
        variables.Extracted.at(n) = extracted ? 1 : 0;
        variables.Unmixable.at(n) = has(state.unmixable, n) ? 1 : 0;
        if (extracted || !has(state.written, n)) {
            variables.Damaged.at(n) = 0;
            variables.refIndex.at(n).clear();
        }
        if (extracted) {
            QList<int> unreadable;
            ScanReferences(variables,
                           readablePlainText(variables, n, unreadable).value_or(QString()), n);
            variables.Damaged.at(n) = unreadable.isEmpty() ? 0 : 1;
        }
    }
    if (otherPhrase || !variables.CurrentFormat)
        RebuildReferenceIndex(variables, progress);
}

void finishLeftChange(const QString &workingFolder, Prompts &prompts)
{
    const QString folder = recoverJournal(workingFolder);
    if (!folder.isEmpty())
        tellLeftovers(prompts, folder);
}

bool hasLeftSession(const QString &workingFolder)
{
    const WorkingFiles files(workingFolder);
    return isAnythingAt(files.state()) || isAnythingAt(files.journal());
}
