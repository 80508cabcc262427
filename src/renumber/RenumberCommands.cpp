#include "renumber/RenumberCommands.h"

#include "platform/Failures.h"
#include "renumber/RenumberParagraphs.h"
#include "store/AdventureChanges.h"
#include "store/CommandHistory.h"
#include "store/LenientNumbers.h"
#include "store/LongWork.h"

namespace
{
struct Range {
    qint64 low;
    qint64 high;
};

Range orderedRange(double low, double high)
{
    const Range range{roundHalfEven(low), roundHalfEven(high)};
    return range.low <= range.high ? range : Range{range.high, range.low};
}

bool isWithin(const Range &range)
{
    return range.low >= 1 && range.high <= Variables::LastParagraph;
}

} // namespace

RenumberCommands::RenumberCommands(Variables &variables, Prompts &prompts, WorkReport &report)
    : m_variables(variables), m_prompts(prompts), m_report(report)
{
}

bool RenumberCommands::Swap(double a, double b)
{
    const auto isNumber = [](double n) { return n >= 1 && n <= Variables::LastParagraph; };
    if (!isNumber(a) || !isNumber(b))
        return refuse(tr("Vous devez spécifier deux chiffres différents "
                         "entre 1 et %1.")
                          .arg(Variables::LastParagraph),
                      tr("C'est la loi"));
    const int first = roundHalfEven(a);
    const int second = roundHalfEven(b);
    return mayMoveFixed(first, second) &&
           renumber(SwapMap(first, second), tr("Échange %1 et %2").arg(first).arg(second));
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
    const Range range = orderedRange(low, high);
    if (!isWithin(range))
        return refuseRange();
    if (range.high - range.low + 1 <= 3)
        return refuse(tr("MasterMix n'aura aucun effet si vous Mélangez 3 paragraphes "
                         "ou moins."),
                      tr("Songez-y"));
    const int first = static_cast<int>(range.low);
    const int last = static_cast<int>(range.high);
    return renumber(MixMap(first, last, m_variables.Unmixable, random),
                    tr("MasterMix %1 à %2").arg(first).arg(last));
}

bool RenumberCommands::MoveBlock(double low, double high, double delta, Towards towards)
{
    const Range block = orderedRange(low, high);
    const qint64 distance = roundHalfEven(delta);
    const bool lower = towards == Towards::Lower;
    const Range span{lower ? block.low - distance : block.low,
                     lower ? block.high : block.high + distance};
    if (!isWithin(span))
        return refuse(tr("Tous les paragraphes doivent être (et rester) "
                         "entre 1 et %1.")
                          .arg(Variables::LastParagraph),
                      tr("Zut"));
    if (distance == 0)
        return refuse(tr("Il ne sert à rien de déplacer de 0 unités."), tr("Zut"));
    return renumber(
        BlockMoveMap(static_cast<int>(block.low), static_cast<int>(block.high),
                     static_cast<int>(distance), towards, m_variables.Unmixable),
        tr("Déplacement %1 à %2 de %3")
            .arg(block.low)
            .arg(block.high)
            .arg((lower ? QStringLiteral("-") : QStringLiteral("+")) + QString::number(distance)));
}

bool RenumberCommands::PackHoles(double low, double high)
{
    const Range range = orderedRange(low, high);
    if (!isWithin(range))
        return refuseRange();
    // Two numbers are refused too, although the text lets one expect otherwise: required.
    if (range.high - range.low <= 1)
        return refuse(tr("L'intervalle doit couvrir au moins 2 paragraphes."), tr("Zut"));
    const int first = static_cast<int>(range.low);
    const int last = static_cast<int>(range.high);
    const std::optional<RenumberMap> map =
        PackHolesMap(first, last, m_variables.Written, m_variables.Unmixable);
    return !map || renumber(*map, tr("Combler les Trous %1 à %2").arg(first).arg(last));
}

bool RenumberCommands::renumber(const RenumberMap &map, const QString &title)
{
    return reportingFailures(m_prompts, [&] {
        LongWork work(m_report, tr("Renumérotation..."));
        const int before = m_variables.History->newId();
        RenumberParagraphs(m_variables, map, title, work.progress());
        setModified(m_variables);
        announceDone(m_variables, m_report, before);
        return true;
    });
}

bool RenumberCommands::refuse(const QString &text, const QString &title)
{
    m_prompts.message(text, title, Prompts::Buttons::Ok);
    return false;
}

bool RenumberCommands::refuseRange()
{
    return refuse(
        tr("Vous devez spécifier des paragraphes entre 1 et %1.").arg(Variables::LastParagraph),
        tr("Zut"));
}
