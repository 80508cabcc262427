#pragma once

#include "store/LenientNumbers.h"

// The paragraph that was typed into a box for a number; nothing when there is none of that number,
// or nothing was typed.
inline std::optional<int> typedParagraph(const QString &typed)
{
    return typed.isEmpty() ? std::nullopt : lenientParagraph(typed);
}
