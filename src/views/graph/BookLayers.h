#pragma once

#include <QList>

struct ReferenceWeb;

// Layers of paragraphs: references lead at most one layer further, or back by any number of them.
using Layers = QList<QList<int>>;

struct BookLayers {
    Layers reached; // by the number of references that it takes to come there from the start
    Layers apart;   // what no way leads to from the start, in layers from its own beginnings
};

// Puts each of these paragraphs into one layer. The start is the whole of the first one; there is
// no layer when it is none of the paragraphs.
BookLayers bookLayers(const ReferenceWeb &web, const QList<int> &paragraphs, int start);
