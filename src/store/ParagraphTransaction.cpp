#include "store/ParagraphTransaction.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "richtext/TextLimit.h"
#include "store/AdventureChanges.h"
#include "store/ParagraphTexts.h"
#include "store/Session.h"
#include "store/WorkingFiles.h"
#include "store/WorkingFolder.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <numeric>

ParagraphTransaction::ParagraphTransaction(Variables &variables) : m_variables(variables)
{
    finishLeftJournal(m_variables);
    setJournalAside(m_variables.WorkingFolder);
    forgetBefore();
}

ParagraphTransaction::~ParagraphTransaction()
{
    if (m_committed) {
        forgetBefore();
        return;
    }
    if (m_rangeBefore) {
        m_variables.LowestWritten = m_rangeBefore->lowest;
        m_variables.HighestWritten = m_rangeBefore->highest;
    }
    for (const auto &[number, change] : m_changes) {
        try {
            removeFile(WorkingFiles(m_variables).parked(number));
        } catch (const FileError &) {
            continue; // it counts for nothing, and goes at the next start
        }
    }
    tryRemoveFile(WorkingFiles(m_variables).nextState());
    removeSessionFolder(m_variables.WorkingFolder);
}

void ParagraphTransaction::change(const Change &change)
{
    if (change.rtf.size() > LargestText)
        throw LimitError(QStringLiteral("bytes of a text"), LargestText);
    makeWorkingFolder(m_variables.WorkingFolder);
    // Noted first, so that half a file goes too.
    m_changes[change.before] = {change.before, change.after, change.fixed, textSha256(change.rtf),
                                change.references};
    writeForLater(WorkingFiles(m_variables).parked(change.before), change.rtf);
}

void ParagraphTransaction::empty(int n, bool fixed)
{
    m_emptied[n] = fixed;
}

QByteArray ParagraphTransaction::rtf(int n) const
{
    if (m_changes.count(n) != 0)
        return readWholeFile(WorkingFiles(m_variables).parked(n), LargestText);
    return m_emptied.count(n) != 0 ? QByteArray() : GetParagraphRtf(m_variables, n);
}

void ParagraphTransaction::widenRange(int low, int high)
{
    if (!m_rangeBefore)
        m_rangeBefore = range();
    m_variables.LowestWritten = std::min(m_variables.LowestWritten, static_cast<qint16>(low));
    m_variables.HighestWritten = std::max(m_variables.HighestWritten, static_cast<qint16>(high));
}

void ParagraphTransaction::commit()
{
    const Journal decided = journal();
    const bool changes = !decided.placed.isEmpty() || !decided.emptied.isEmpty();
    if (changes) {
        refuseLostTexts(decided);
        keepStates(decided);
        syncFileSystem(m_variables.WorkingFolder);
        commitJournal(m_variables.WorkingFolder, decided);
    }
    m_committed = true;
    if (changes) {
        rememberBefore(decided);
        place(decided);
    }
    takeOver(m_variables, decided);
    if (changes)
        announce(decided);
}

// Before the journal counts, the state is the one before the change, and the one after it lies
// beside it.
void ParagraphTransaction::keepStates(const Journal &journal) const
{
    const QString &folder = m_variables.WorkingFolder;
    makeSessionFolder(folder);
    SessionState before = sessionState(m_variables);
    if (m_rangeBefore) {
        before.lowest = m_rangeBefore->lowest;
        before.highest = m_rangeBefore->highest;
    }
    keepSession(folder, before);
    Variables after = m_variables;
    takeOver(after, journal);
    writeForLater(WorkingFiles(folder).nextState(), sessionStateBytes(sessionState(after)));
}

void ParagraphTransaction::rememberBefore(const Journal &journal)
{
    m_before.emplace(Before{m_variables, {}});
    for (const Journal::Placed &placed : journal.placed)
        m_before->displaced.insert(placed.after);
    for (const Journal::Emptied &emptied : journal.emptied)
        m_before->displaced.insert(emptied.number);
}

// A working file makes room only when the journal is placed.
QByteArray ParagraphTransaction::textBefore(int n) const
{
    if (!m_before || m_before->displaced.count(n) == 0)
        return GetParagraphRtf(m_variables, n);
    const QString kept = WorkingFiles(m_variables).before(n);
    const bool madeRoom = !m_variables.JournalLeft || QFileInfo::exists(kept);
    if (m_before->state.Extracted.at(n) == 1 && madeRoom)
        return readWholeFile(kept, LargestText);
    return GetParagraphRtf(m_before->state, n);
}

void ParagraphTransaction::forgetBefore()
{
    m_before.reset();
    const QStringList kept = WorkingFiles(m_variables).allBefore();
    for (const QString &path : kept)
        tryRemoveFile(path); // one that stays goes at the next start
    removeSessionFolder(m_variables.WorkingFolder);
}

Journal ParagraphTransaction::journal() const
{
    Journal journal;
    journal.filePrefix = m_variables.FilePrefix;
    std::map<int, bool> emptied = m_emptied;
    for (const auto &[number, change] : m_changes) {
        journal.placed.append(change);
        if (change.after != number)
            emptied.try_emplace(number, false);
    }
    for (const Journal::Placed &placed : std::as_const(journal.placed))
        emptied.erase(placed.after);
    for (const auto &[number, fixed] : emptied)
        journal.emptied.append({number, fixed});
    return journal;
}

// Whatever the caller got wrong, no text may be written over by another.
void ParagraphTransaction::refuseLostTexts(const Journal &journal) const
{
    std::set<int> taken;
    for (const Journal::Placed &placed : journal.placed) {
        const bool leaves =
            m_changes.count(placed.after) != 0 || m_emptied.count(placed.after) != 0;
        const bool written = m_variables.Written.at(placed.after) == 1;
        if (!taken.insert(placed.after).second || (written && !leaves))
            throw UsmiraError(QStringLiteral("two texts for paragraph %1").arg(placed.after));
    }
}

// Tried twice; the journal stays for a third time later.
void ParagraphTransaction::place(const Journal &journal)
{
    m_variables.JournalLeft = std::make_shared<const Journal>(journal);
    for (int attempt = 0; attempt < 2; ++attempt) {
        try {
            finishLeftJournal(m_variables);
        } catch (const FileError &) {
            continue;
        }
    }
}

void ParagraphTransaction::takeOver(Variables &variables, const Journal &journal) const
{
    for (const Journal::Emptied &emptied : journal.emptied) {
        const int n = emptied.number;
        variables.Written.at(n) = 0;
        variables.Extracted.at(n) = 0;
        variables.Unmixable.at(n) = emptied.fixed ? 1 : 0;
        variables.refIndex.at(n).clear();
    }
    for (const Journal::Placed &placed : journal.placed) {
        const int n = placed.after;
        const auto number = static_cast<qint16>(placed.after);
        variables.Written.at(n) = 1;
        variables.Extracted.at(n) = 1;
        variables.Damaged.at(n) = 0;
        variables.Unmixable.at(n) = placed.fixed ? 1 : 0;
        variables.refIndex.at(n) = placed.references;
        variables.LowestWritten = std::min(variables.LowestWritten, number);
        variables.HighestWritten = std::max(variables.HighestWritten, number);
    }
    if (m_rangeBefore)
        RecomputeWrittenRange(variables);
}

void ParagraphTransaction::announce(const Journal &journal) const
{
    setModified(m_variables);
    AdventureEvents &events = *m_variables.Events;
    ParagraphArray<qint16, 2001> newNumbers;
    std::iota(newNumbers.begin(), newNumbers.end(), qint16{0});
    const ParagraphArray<qint16, 2001> unmoved = newNumbers;
    QList<int> changed;
    for (const Journal::Emptied &emptied : journal.emptied)
        changed.append(emptied.number);
    for (const Journal::Placed &placed : journal.placed) {
        newNumbers.at(placed.before) = static_cast<qint16>(placed.after);
        changed.append(placed.after);
    }
    if (newNumbers != unmoved)
        Q_EMIT events.numbersChanged(newNumbers);
    std::sort(changed.begin(), changed.end());
    Q_EMIT events.textsChanged(changed);
    Q_EMIT events.marksChanged();
}
