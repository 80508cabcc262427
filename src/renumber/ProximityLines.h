#pragma once

#include "store/Variables.h"

#include <QStringList>
#include <optional>

class Prompts;

// The references that land too close to the paragraph they come from, or to one another.
struct ProximityLines {
    // "25 mène au 26" or "25 mène au 40 et au 41", in the order of the paragraphs and of their
    // texts; "Aucun Problème !" alone when there is none.
    QStringList lines;
    // A list that nobody could read through ends after the first MostProximityLines, and this says
    // so, in French. Empty when the list is whole.
    QString cut;
};
constexpr qsizetype MostProximityLines = 100000;

// Lists what is at most proximity apart, from the reference index alone. Of zero nothing comes, and
// the author is told.
std::optional<ProximityLines> ProximityScan(const Variables &variables, double proximity,
                                            Prompts &prompts);

// The paragraph that a line of the list begins with; none for "Aucun Problème !".
std::optional<int> proximityParagraph(const QString &line);
