#include "renumber/RenumberPlans.h"

#include "store/LenientNumbers.h"

#include <QCoreApplication>

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

NumberPair pairOf(const Range &range)
{
    return {static_cast<int>(range.low), static_cast<int>(range.high)};
}

class Words
{
    Q_DECLARE_TR_FUNCTIONS(RenumberPlans)
};

Refusal refusedRange()
{
    return {Words::tr("Vous devez spécifier des paragraphes entre 1 et %1.")
                .arg(Variables::LastParagraph),
            Words::tr("Zut")};
}
} // namespace

Planned<NumberPair> planSwap(double a, double b)
{
    const auto isNumber = [](double n) { return n >= 1 && n <= Variables::LastParagraph; };
    if (!isNumber(a) || !isNumber(b))
        return Refusal{Words::tr("Vous devez spécifier deux chiffres différents entre 1 et %1.")
                           .arg(Variables::LastParagraph),
                       Words::tr("C'est la loi")};
    return NumberPair{roundHalfEven(a), roundHalfEven(b)};
}

Planned<NumberPair> planMix(double low, double high)
{
    const Range range = orderedRange(low, high);
    if (!isWithin(range))
        return refusedRange();
    if (range.high - range.low + 1 <= 3)
        return Refusal{
            Words::tr("MasterMix n'aura aucun effet si vous Mélangez 3 paragraphes ou moins."),
            Words::tr("Songez-y")};
    return pairOf(range);
}

Planned<BlockMove> planMove(double low, double high, double delta, Towards towards)
{
    const Range block = orderedRange(low, high);
    const qint64 distance = roundHalfEven(delta);
    const bool lower = towards == Towards::Lower;
    const Range span{lower ? block.low - distance : block.low,
                     lower ? block.high : block.high + distance};
    if (!isWithin(span))
        return Refusal{Words::tr("Tous les paragraphes doivent être (et rester) entre 1 et %1.")
                           .arg(Variables::LastParagraph),
                       Words::tr("Zut")};
    if (distance == 0)
        return Refusal{Words::tr("Il ne sert à rien de déplacer de 0 unités."), Words::tr("Zut")};
    const NumberPair numbers = pairOf(block);
    return BlockMove{numbers.first, numbers.second, static_cast<int>(distance), towards};
}

// Two numbers are refused too, although the text lets one expect otherwise: required.
Planned<NumberPair> planPack(double low, double high)
{
    const Range range = orderedRange(low, high);
    if (!isWithin(range))
        return refusedRange();
    if (range.high - range.low <= 1)
        return Refusal{Words::tr("L'intervalle doit couvrir au moins 2 paragraphes."),
                       Words::tr("Zut")};
    return pairOf(range);
}
