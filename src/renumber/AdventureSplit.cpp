#include "renumber/AdventureSplit.h"

#include "platform/Failures.h"
#include "platform/SafeFile.h"
#include "platform/SameFile.h"
#include "store/AdventureFile.h"
#include "store/CommandHistory.h"
#include "store/DamagedTexts.h"
#include "store/ExportTarget.h"
#include "store/LenientNumbers.h"
#include "store/LongWork.h"
#include "store/ParagraphTexts.h"
#include "store/ParagraphTransaction.h"

#include <QFileInfo>
#include <algorithm>

AdventureSplit::AdventureSplit(Variables &variables, Prompts &prompts, WorkReport &report)
    : m_variables(variables), m_prompts(prompts), m_report(report)
{
}

bool AdventureSplit::Export(const SplitRequest &request)
{
    return Export(request, [this] {
        return m_prompts.saveName(tr("Nouvelle Aventure"), tr("Fichiers Usmira (*.usm)|*.usm"),
                                  QStringLiteral("usm"), QString());
    });
}

bool AdventureSplit::Export(const SplitRequest &request, const std::function<QString()> &choose)
{
    const QList<int> numbers = writtenNumbers(m_variables, request);
    if (numbers.isEmpty()) {
        m_prompts.message(nothingWritten(), tr("Zut"), Prompts::Buttons::Ok);
        return false;
    }
    const QString path = choose();
    return !path.isEmpty() && reportingFailures(m_prompts, [&] {
        LongWork work(m_report, tr("Exportation..."));
        write(numbers, path, work.progress());
        const QString told =
            tr("%n paragraphe(s) exporté(s) : %1", nullptr, static_cast<int>(numbers.size()))
                .arg(path);
        m_report.announce(told);
        if (request.murder) {
            const int before = m_variables.History->newId();
            remove(numbers);
            announceDone(m_variables, m_report, before, told);
        }
        return true;
    });
}

// What is asked for above 2000 ends there: no number of its own comes of it.
QList<int> AdventureSplit::writtenNumbers(const Variables &variables, const SplitRequest &request)
{
    const auto [low, high] = std::minmax({roundHalfEven(request.low), roundHalfEven(request.high)});
    QList<int> numbers;
    for (int n = low; n <= std::min(high, Variables::LastParagraph); ++n)
        if (variables.Written.at(n) == 1)
            numbers.append(n);
    return numbers;
}

QString AdventureSplit::nothingWritten()
{
    return tr("Tous les paragraphes dans cet intervalle sont vides.");
}

void AdventureSplit::write(const QList<int> &numbers, const QString &path,
                           const Progress &progress) const
{
    refuseOwnFiles(m_variables, path);
    QList<int> unreadable;
    for (const int n : numbers)
        static_cast<void>(readableText(m_variables, n, unreadable));
    if (!unreadable.isEmpty())
        throw UnreadableTexts(unreadable);
    Variables part = m_variables;
    part.LowestWritten = static_cast<qint16>(numbers.first());
    part.HighestWritten = static_cast<qint16>(numbers.last());
    part.CurrentParagraph = part.LowestWritten;
    part.extras = extrasOf(numbers, part.extras);
    const QString target = finalPath(path);
    writing(target, [&] {
        return writeAdventure(
            part, target, [&part](int n) { return GetParagraphRtf(part, n); }, progress);
    });
    trySyncFolder(QFileInfo(target).absolutePath());
}

// The fixed marks stay with the numbers, and so do the references to them.
void AdventureSplit::remove(const QList<int> &numbers)
{
    ParagraphTransaction transaction(
        m_variables,
        {tr("Scission %1 à %2").arg(numbers.first()).arg(numbers.last()), std::nullopt});
    transaction.widenRange(numbers.first(), numbers.last()); // it is made anew by the commit
    for (const int n : numbers)
        transaction.empty(n, m_variables.Unmixable.at(n) == 1);
    transaction.commit();
}
