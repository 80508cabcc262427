#pragma once

#include "store/LenientNumbers.h"
#include "store/Variables.h"

#include <optional>

// The paragraph that was typed into a box for a number; nothing when there is none of that number.
inline std::optional<int> typedParagraph(const QString &typed)
{
    const int n = roundHalfEven(lenientNumber(typed));
    const bool isOne = !typed.isEmpty() && n >= 0 && n <= Variables::LastParagraph;
    return isOne ? std::optional(n) : std::nullopt;
}
