#pragma once

#include "store/Variables.h"

// How the stored text of paragraph n begins, on one line; empty when it has no text or cannot be
// read.
QString firstWords(const Variables &variables, int n);
