#pragma once

#include "platform/Progress.h"

#include <functional>

struct Variables;

// The paragraphs that an export takes: low..high, both within 0..2000; the unwritten among them are
// passed over.
struct ExportRange {
    int low;
    int high;
    bool operator==(const ExportRange &) const = default;
};

// The range as two numbers were typed: rounded to whole numbers, a half to the even one, put in
// order and cut to 0..2000.
ExportRange exportRange(double first, double second);

// Runs action for each written paragraph of the range, ascending, and gives their number.
int forEachWritten(const Variables &variables, const ExportRange &range, const Progress &progress,
                   const std::function<void(int)> &action);
