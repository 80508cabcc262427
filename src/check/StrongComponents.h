#pragma once

#include "store/ParagraphArray.h"

#include <QList>

struct ReferenceWeb;

// Some of the paragraphs.
using ParagraphSet = ParagraphArray<bool, 2001>;

// Parts these paragraphs into the largest groups in which each leads to each by references within
// the set: a ring and what hangs on it both ways; most paragraphs are a group alone. A group comes
// before all that lead to it. Takes time as the references are many.
QList<QList<int>> strongComponents(const ReferenceWeb &web, const ParagraphSet &inside);

// The shortest ring of references through a paragraph within the set: begins with it, and the last
// one leads to it again. Empty when there is none.
QList<int> ringThrough(const ReferenceWeb &web, int start, const ParagraphSet &inside);
