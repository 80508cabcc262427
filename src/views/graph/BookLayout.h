#pragma once

#include "views/graph/GraphDrawing.h"

struct ReferenceWeb;
struct Variables;

// Places every paragraph that is written or referred to, each once: in layers from left to right by
// its distance from the start, and what no way leads to from there below. A layer of many
// paragraphs takes several columns. The start is 0..2000.
GraphDrawing layOutBook(const Variables &variables, const ReferenceWeb &web, int start);
