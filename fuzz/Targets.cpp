#include "Targets.h"

#include <stdexcept>

const QList<FuzzTarget> &fuzzTargets()
{
    static const QList<FuzzTarget> targets =
        textTargets() + fileTargets() + sessionTargets() + languageTargets();
    return targets;
}

void promise(bool holds, const char *words)
{
    if (!holds)
        throw std::logic_error(words);
}
