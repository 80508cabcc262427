#pragma once

#include "convert/pdf/PageSetup.h"

// The page setup that was used last, in a file of its own: UTF-8, a word for each line, ended by
// CR LF, see PageWords.h.

// What cannot be read, or makes no sense, leaves the default. Never throws.
PageSetup readPageSetup(const Variables &variables);

// A failure is passed over: the next dialog has the setup of before.
void keepPageSetup(const Variables &variables, const PageSetup &setup);
