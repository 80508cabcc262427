#include "store/ParagraphTransaction.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "richtext/TextLimit.h"
#include "store/AdventureChanges.h"
#include "store/AdventureEvents.h"
#include "store/HistoryNotes.h"
#include "store/ParagraphTexts.h"
#include "store/Session.h"
#include "store/WorkingFiles.h"
#include "store/WorkingFolder.h"

#include <algorithm>
#include <set>
#include <utility>

namespace
{
void setWrittenRange(Variables &variables, const WrittenRange &range)
{
    variables.LowestWritten = static_cast<qint16>(range.lowest);
    variables.HighestWritten = static_cast<qint16>(range.highest);
}

bool changesAnything(const Journal &journal)
{
    return !journal.placed.isEmpty() || !journal.emptied.isEmpty();
}

void renumberExtras(Variables &variables, const NumberMap &numbers)
{
    const AdventureExtras before =
        std::exchange(variables.extras, renumbered(variables.extras, numbers));
    variables.extrasModified |= before != variables.extras;
}
} // namespace

ParagraphTransaction::ParagraphTransaction(Variables &variables, Name name)
    : m_variables(variables), m_name(std::move(name)), m_history(*variables.History)
{
    finishLeftJournal(m_variables);
    setJournalAside(m_variables.WorkingFolder);
}

ParagraphTransaction::~ParagraphTransaction()
{
    if (m_committed)
        return;
    if (m_rangeBefore)
        setWrittenRange(m_variables, *m_rangeBefore);
    for (const auto &[number, change] : m_changes) {
        try {
            removeFile(WorkingFiles(m_variables).parked(number));
        } catch (const FileError &) {
            continue; // it counts for nothing, and goes at the next start
        }
    }
    tryRemoveFile(WorkingFiles(m_variables).nextState());
    removeOtherExtras(m_variables.WorkingFolder);
    removeOtherSteps(m_variables.WorkingFolder, *m_variables.History);
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
    refuseLostTexts(decided);
    if (changesAnything(decided))
        m_history = historyWith(m_variables, stepOf(decided),
                                [this](int n) { return GetParagraphRtf(m_variables, n); });
    commit(decided);
}

void ParagraphTransaction::commit(const CommandHistory &history)
{
    const Journal decided = journal();
    refuseLostTexts(decided);
    m_history = history;
    commit(decided);
    if (changesAnything(decided))
        return;
    tryKeepSession(m_variables);
    removeOtherSteps(m_variables.WorkingFolder, m_history);
    Q_EMIT m_variables.Events->historyChanged();
}

void ParagraphTransaction::commit(const Journal &journal)
{
    const bool changes = changesAnything(journal);
    if (changes) {
        keepStates(journal);
        syncFileSystem(m_variables.WorkingFolder);
        commitJournal(m_variables.WorkingFolder, journal);
    }
    m_committed = true;
    if (changes)
        place(journal);
    takeOver(m_variables, journal);
    if (!changes)
        return;
    removeOtherExtras(m_variables.WorkingFolder);
    removeOtherSteps(m_variables.WorkingFolder, m_history);
    announce(journal);
}

// The checksums of the texts from before are not known yet.
HistoryStep ParagraphTransaction::stepOf(const Journal &journal) const
{
    HistoryStep step;
    step.title = m_name.title;
    step.numbers = m_name.numbers;
    step.time = QDateTime::currentDateTime();
    step.targetPhrase = m_variables.TargetPhrase;
    Variables after = m_variables;
    takeOver(after, journal);
    step.rangeBefore = m_rangeBefore.value_or(range());
    step.rangeAfter = {after.LowestWritten, after.HighestWritten};
    std::map<int, QByteArray> concerned; // with the checksums of the texts that come
    for (const Journal::Emptied &emptied : journal.emptied)
        concerned[emptied.number];
    for (const Journal::Placed &placed : journal.placed)
        concerned[placed.after] = placed.sha256;
    for (int n = 0; step.numbers && n < NumberMap::count(); ++n)
        if (step.numbers->at(n) != n)
            concerned[n];
    const auto stateIn = [](const Variables &variables, int n, const QByteArray &sha256) {
        return ParagraphFacts{variables.Written.at(n) == 1, variables.Unmixable.at(n) == 1, sha256,
                              variables.refIndex.at(n)};
    };
    for (const auto &[n, sha256] : concerned)
        step.paragraphs[n] = {stateIn(m_variables, n, {}), stateIn(after, n, sha256), 0};
    return step;
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
    keepSession(m_variables, before);
    Variables after = m_variables;
    takeOver(after, journal);
    keepExtras(after);
    writeForLater(WorkingFiles(folder).nextState(), sessionStateBytes(sessionState(after)));
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
    if (m_rangeAfter)
        setWrittenRange(variables, *m_rangeAfter);
    if (m_name.numbers && changesAnything(journal))
        renumberExtras(variables, *m_name.numbers);
    variables.History = std::make_shared<const CommandHistory>(m_history);
}

void ParagraphTransaction::announce(const Journal &journal) const
{
    setModified(m_variables);
    AdventureEvents &events = *m_variables.Events;
    const NumberMap unmoved = unmovedNumbers();
    NumberMap newNumbers = unmoved;
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
    if (m_name.numbers)
        Q_EMIT events.extrasChanged();
    Q_EMIT events.historyChanged();
}
