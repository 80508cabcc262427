#include "store/references/ReferenceWeb.h"

#include "store/ReferenceIndex.h"
#include "store/Variables.h"

ReferenceWeb::ReferenceWeb(const Variables &variables)
{
    for (int from = variables.LowestWritten; from <= variables.HighestWritten; ++from) {
        if (variables.Written.at(from) == 0)
            continue;
        const QList<int> referred = referredParagraphs(variables.refIndex.at(from));
        for (const int to : referred) {
            QList<int> &referrers = incoming.at(to);
            if (!referrers.isEmpty() && referrers.last() == from)
                continue; // named before in the same text
            referrers.append(from);
            outgoing.at(from).append(to);
        }
    }
}
