#include "renumber/RenumberCommands.h"

#include "platform/Failures.h"
#include "renumber/RenumberEffect.h"
#include "store/AdventureChanges.h"
#include "store/CommandHistory.h"
#include "store/DamagedTexts.h"
#include "store/LongWork.h"
#include "store/references/DoubtfulReferences.h"

#include <algorithm>

RenumberCommands::RenumberCommands(Variables &variables, Prompts &prompts, WorkReport &report)
    : m_variables(variables), m_prompts(prompts), m_report(report)
{
}

bool RenumberCommands::Swap(double a, double b)
{
    return carryOut(planSwap(a, b), [this](const NumberPair &numbers) {
        return mayMoveFixed(numbers.first, numbers.second) &&
               renumber(SwapMap(numbers.first, numbers.second),
                        tr("Échange %1 et %2").arg(numbers.first).arg(numbers.second));
    });
}

bool RenumberCommands::mayMoveFixed(int a, int b)
{
    const bool fixed = m_variables.Unmixable.at(a) == 1 || m_variables.Unmixable.at(b) == 1;
    return !fixed ||
           m_prompts.message(tr("Vous allez échanger un ou deux paragraphes que vous avez déclarés "
                                "Fixes. Échanger quand même ?"),
                             tr("Attention"), Prompts::Buttons::YesNo) == Prompts::Answer::Yes;
}

bool RenumberCommands::MasterMix(double low, double high, const std::function<double()> &random)
{
    return carryOut(planMix(low, high), [&](const NumberPair &range) {
        return renumber(MixMap(range.first, range.second, m_variables.Unmixable, random),
                        tr("MasterMix %1 à %2").arg(range.first).arg(range.second));
    });
}

bool RenumberCommands::MoveBlock(double low, double high, double delta, Towards towards)
{
    return carryOut(planMove(low, high, delta, towards), [this](const BlockMove &move) {
        return renumber(
            BlockMoveMap(move.low, move.high, move.distance, move.towards, m_variables.Unmixable),
            tr("Déplacement %1 à %2 de %3")
                .arg(move.low)
                .arg(move.high)
                .arg((move.towards == Towards::Lower ? QStringLiteral("-") : QStringLiteral("+")) +
                     QString::number(move.distance)));
    });
}

bool RenumberCommands::PackHoles(double low, double high)
{
    return carryOut(planPack(low, high), [this](const NumberPair &range) {
        const std::optional<RenumberMap> map =
            PackHolesMap(range.first, range.second, m_variables.Written, m_variables.Unmixable);
        return !map ||
               renumber(*map, tr("Combler les Trous %1 à %2").arg(range.first).arg(range.second));
    });
}

template <typename Plan, typename Action>
bool RenumberCommands::carryOut(const Planned<Plan> &planned, const Action &action)
{
    if (const auto *refusal = std::get_if<Refusal>(&planned)) {
        m_prompts.message(refusal->text, refusal->title, Prompts::Buttons::Ok);
        return false;
    }
    return action(std::get<Plan>(planned));
}

bool RenumberCommands::renumber(const RenumberMap &map, const QString &title)
{
    return reportingFailures(m_prompts, [&] {
        const std::optional<Garbled> garbled = askAboutGarbled(map);
        if (!garbled)
            return false;
        LongWork work(m_report, tr("Renumérotation..."));
        const int before = m_variables.History->newId();
        RenumberParagraphs(m_variables, map, {title, *garbled}, work.progress());
        setModified(m_variables);
        announceDone(m_variables, m_report, before);
        return true;
    });
}

// Nothing: the author goes on with neither.
std::optional<Garbled> RenumberCommands::askAboutGarbled(const RenumberMap &map)
{
    const int count = countGarbled(map);
    if (count == 0)
        return Garbled::AsTheyStand;
    const QString question =
        tr("%n renvoi(s) serai(en)t mal réécrit(s). Les corriger d'abord ?", nullptr, count);
    switch (m_prompts.message(question, tr("Attention"), Prompts::Buttons::YesNoCancel)) {
    case Prompts::Answer::Yes:
        return Garbled::MendedBefore;
    case Prompts::Answer::No:
        return Garbled::AsTheyStand;
    default:
        return std::nullopt;
    }
}

// A text that cannot be read ends the renumbering later.
int RenumberCommands::countGarbled(const RenumberMap &map) const
{
    const NumberSet moved = movedNumbers(map);
    QList<int> unreadable;
    qsizetype count = 0;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        if (m_variables.Written.at(n) == 0 || !isRewritten(m_variables.refIndex.at(n), moved))
            continue;
        const QString text = readablePlainText(m_variables, n, unreadable).value_or(QString());
        const QList<DoubtfulReference> doubtful =
            doubtfulReferences(n, text, m_variables.TargetPhrase);
        count += std::count_if(doubtful.begin(), doubtful.end(),
                               [](const DoubtfulReference &one) { return one.garbled; });
    }
    return static_cast<int>(count);
}
