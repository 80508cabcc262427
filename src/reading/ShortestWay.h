#pragma once

#include "check/StrongComponents.h"

#include <QList>

struct ReferenceWeb;

// The paragraphs behind a first one on a shortest way by references to the nearest of those
// wanted, it included; of two as near the one named first in the texts. The first one itself does
// not count. Empty when none can be come to.
QList<int> shortestWay(const ReferenceWeb &web, int from, const ParagraphSet &wanted);
