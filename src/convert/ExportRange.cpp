#include "convert/ExportRange.h"

#include "platform/LenientNumbers.h"
#include "store/Variables.h"

#include <algorithm>

ExportRange exportRange(double first, double second)
{
    const int a = std::min(roundHalfEven(first), Variables::LastParagraph);
    const int b = std::min(roundHalfEven(second), Variables::LastParagraph);
    return {std::min(a, b), std::max(a, b)};
}
