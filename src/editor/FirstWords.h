#pragma once

#include "store/Variables.h"

// How the stored text of paragraph n begins, on one line; empty when it has no text. A text that
// cannot be read is said to be so, in French.
QString firstWords(const Variables &variables, int n);
