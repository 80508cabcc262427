#include "convert/ExportRange.h"

#include "store/LenientNumbers.h"
#include "store/Variables.h"

#include <algorithm>

ExportRange exportRange(double first, double second)
{
    const int a = std::min(roundHalfEven(first), Variables::LastParagraph);
    const int b = std::min(roundHalfEven(second), Variables::LastParagraph);
    return {std::min(a, b), std::max(a, b)};
}

int forEachWritten(const Variables &variables, const ExportRange &range, const Progress &progress,
                   const std::function<void(int)> &action)
{
    int written = 0;
    for (int n = range.low; n <= range.high; ++n) {
        if (variables.Written.at(n) == 1) {
            action(n);
            ++written;
        }
        progress(n - range.low + 1, range.high - range.low + 1);
    }
    return written;
}
