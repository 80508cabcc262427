#pragma once

#include "store/Variables.h"

#include <QString>

// The stored text of paragraph n, 0..2000, as the views preview it: without its formatting, and
// "(Vide)" when there is none. Of a text that cannot be read it says so, in French.
QString previewText(const Variables &variables, int n);
