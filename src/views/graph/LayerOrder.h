#pragma once

#include "views/graph/BookLayers.h"

// Orders the paragraphs within each layer so that few of the links between neighbouring layers
// cross: weighted means of the neighbours' places, to and fro, and the best that came of it.
// Sugiyama, Tagawa and Toda, "Methods for visual understanding of hierarchical system structures",
// 1981.
void reduceCrossings(Layers &layers, const ReferenceWeb &web);

// How many pairs of links between neighbouring layers cross, in either direction.
qint64 countCrossings(const Layers &layers, const ReferenceWeb &web);
