#pragma once

#include "Sweep.h"

// The naive saver under the same faults, judged by the same rules: the adventure is the old one or
// the new one. It does not survive.
Tally naiveControl(const ToolRun &run, const Files &start, const Mode &mode);
