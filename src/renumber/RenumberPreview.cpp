#include "renumber/RenumberPreview.h"

#include "renumber/AdventureSplit.h"
#include "renumber/RenumberPlans.h"
#include "store/references/DoubtfulReferences.h"

#include <QCoreApplication>

namespace
{
std::size_t bitOf(int n)
{
    return static_cast<std::size_t>(n);
}

class Words
{
    Q_DECLARE_TR_FUNCTIONS(RenumberPreview)

public:
    static QString nothing() { return tr("Rien ne change."); }
    static QString down(const QString &what) { return tr("Vers le BAS : %1").arg(what); }
    static QString up(const QString &what) { return tr("Vers le HAUT : %1").arg(what); }

    static QString effect(const RenumberEffect &effect)
    {
        if (effect.moved == 0 && effect.references == 0)
            return nothing();
        const QString moved =
            effect.moved == 0 ? tr("Aucun paragraphe ne change de numéro")
                              : tr("%n paragraphe(s) change(nt) de numéro", nullptr, effect.moved);
        const QString rewritten =
            effect.references == 0 ? tr("aucun renvoi à réécrire") : references(effect);
        return together(moved, rewritten);
    }

    static QString mix(const RenumberEffect &effect, int fixed)
    {
        const QString mixed = effect.moved == 0
                                  ? tr("Aucun paragraphe à mélanger")
                                  : tr("%n paragraphe(s) mélangé(s)", nullptr, effect.moved);
        const QString kept =
            fixed == 0 ? tr("aucun ne reste fixe") : tr("%n reste(nt) fixe(s)", nullptr, fixed);
        const QString rewritten = effect.references == 0 ? tr("aucun renvoi à réécrire")
                                                         : tr("au plus %1").arg(references(effect));
        return together(mixed + QStringLiteral(", ") + kept, rewritten);
    }

    static QString exported(int paragraphs)
    {
        return tr("%n paragraphe(s) exporté(s).", nullptr, paragraphs);
    }

    static QString murdered(int paragraphs, const RenumberEffect &left)
    {
        const QString gone = tr("%n paragraphe(s) exporté(s) et effacé(s)", nullptr, paragraphs);
        if (left.references == 0)
            return together(gone, tr("aucun renvoi n'y mène encore"));
        return together(gone, tr("%n renvoi(s) dans %1 y mène(nt) encore", nullptr, left.references)
                                  .arg(paragraphCount(left.rewritten)));
    }

private:
    static QString together(const QString &first, const QString &second)
    {
        return tr("%1 ; %2.").arg(first, second);
    }
    static QString paragraphCount(int paragraphs)
    {
        return tr("%n paragraphe(s)", nullptr, paragraphs);
    }
    static QString references(const RenumberEffect &effect)
    {
        return tr("%n renvoi(s) réécrit(s) dans %1", nullptr, effect.references)
            .arg(paragraphCount(effect.rewritten));
    }
};

RenumberPreview previewOf(const Variables &variables, const RenumberMap &map)
{
    const NumberSet moved = movedNumbers(map);
    return {Words::effect(effectOf(variables, moved)), moved, {}};
}

template <typename Plan, typename Show>
RenumberPreview shown(const Planned<Plan> &planned, const Show &show)
{
    if (const auto *refusal = std::get_if<Refusal>(&planned))
        return {refusal->text, {}, {}};
    return show(std::get<Plan>(planned));
}

RenumberPreview previewOf(const Variables &variables, const Planned<BlockMove> &planned)
{
    return shown(planned, [&](const BlockMove &move) {
        return previewOf(variables, BlockMoveMap(move.low, move.high, move.distance, move.towards,
                                                 variables.Unmixable));
    });
}
} // namespace

RenumberPreview previewSwap(const Variables &variables, double a, double b)
{
    return shown(planSwap(a, b), [&](const NumberPair &numbers) {
        return previewOf(variables, SwapMap(numbers.first, numbers.second));
    });
}

RenumberPreview previewMix(const Variables &variables, double low, double high)
{
    return shown(planMix(low, high), [&](const NumberPair &range) {
        NumberSet mixed;
        int fixed = 0;
        for (int n = range.first; n <= range.second; ++n) {
            const bool isFixed = variables.Unmixable.at(n) == 1;
            fixed += isFixed && variables.Written.at(n) == 1 ? 1 : 0;
            mixed.set(bitOf(n), !isFixed && n > range.first && n < range.second);
        }
        if (mixed.count() == 1)
            mixed.reset(); // it has none to change places with
        return RenumberPreview{Words::mix(effectOf(variables, mixed), fixed), mixed, {}};
    });
}

RenumberPreview previewMove(const Variables &variables, double low, double high, double delta)
{
    const Planned<BlockMove> down = planMove(low, high, delta, Towards::Lower);
    const Planned<BlockMove> up = planMove(low, high, delta, Towards::Higher);
    const RenumberPreview downwards = previewOf(variables, down);
    const RenumberPreview upwards = previewOf(variables, up);
    if (std::holds_alternative<Refusal>(down) && std::holds_alternative<Refusal>(up))
        return downwards;
    if (std::holds_alternative<Refusal>(down))
        return {Words::up(upwards.text), upwards.moved, {}};
    if (std::holds_alternative<Refusal>(up))
        return {Words::down(downwards.text), downwards.moved, {}};
    return {Words::down(downwards.text) + u'\n' + Words::up(upwards.text),
            downwards.moved | upwards.moved,
            {}};
}

RenumberPreview previewPack(const Variables &variables, double low, double high)
{
    return shown(planPack(low, high), [&](const NumberPair &range) {
        const std::optional<RenumberMap> map =
            PackHolesMap(range.first, range.second, variables.Written, variables.Unmixable);
        return map ? previewOf(variables, *map) : RenumberPreview{Words::nothing(), {}, {}};
    });
}

RenumberPreview previewSplit(const Variables &variables, const SplitRequest &request)
{
    const QList<int> numbers = AdventureSplit::writtenNumbers(variables, request);
    const int count = static_cast<int>(numbers.size());
    if (count == 0)
        return {AdventureSplit::nothingWritten(), {}, {}};
    if (!request.murder)
        return {Words::exported(count), {}, {}};
    NumberSet leaving;
    for (const int n : numbers)
        leaving.set(bitOf(n));
    return {Words::murdered(count, effectOf(variables, leaving, leaving)), leaving, leaving};
}

// What is seen may be any number.
bool isConcerned(const Variables &variables, const RenumberPreview &preview,
                 const DoubtfulReference &doubtful)
{
    const auto moves = [&preview](int n) {
        return n >= 0 && n <= Variables::LastParagraph && preview.moved.test(bitOf(n));
    };
    if (preview.leaving.test(bitOf(doubtful.paragraph)))
        return false;
    if (moves(doubtful.mark.seen) || moves(doubtful.mark.read))
        return true;
    return doubtful.garbled && preview.leaving.none() &&
           isRewritten(variables.refIndex.at(doubtful.paragraph), preview.moved);
}
