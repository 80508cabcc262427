#include "renumber/RenumberEffect.h"

#include "store/ReferenceIndex.h"

#include <algorithm>

namespace
{
int referencesAmong(const QString &indexEntry, const NumberSet &moved)
{
    const QList<int> numbers = referredParagraphs(indexEntry);
    return static_cast<int>(std::count_if(numbers.begin(), numbers.end(), [&moved](int n) {
        return moved.test(static_cast<std::size_t>(n));
    }));
}
} // namespace

NumberSet movedNumbers(const RenumberMap &map)
{
    NumberSet moved;
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        moved.set(static_cast<std::size_t>(n), map.moves(n));
    return moved;
}

RenumberEffect effectOf(const Variables &variables, const NumberSet &moved,
                        const NumberSet &without)
{
    RenumberEffect effect{0, 0, 0};
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        const auto bit = static_cast<std::size_t>(n);
        if (variables.Written.at(n) == 0 || without.test(bit))
            continue;
        const int references = referencesAmong(variables.refIndex.at(n), moved);
        effect.moved += moved.test(bit) ? 1 : 0;
        effect.references += references;
        effect.rewritten += references > 0 ? 1 : 0;
    }
    return effect;
}

bool isRewritten(const QString &indexEntry, const NumberSet &moved)
{
    return referencesAmong(indexEntry, moved) > 0;
}
