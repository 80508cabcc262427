#pragma once

#include "platform/Progress.h"

// What is told of a part of the work becomes what is told of the whole, of which the part is that
// between from and to hundredths. The whole must outlive it.
inline Progress workPart(const Progress &whole, int from, int to)
{
    constexpr int Hundredths = 100;
    return [&whole, from, to](int done, int total) {
        whole(from * total + (to - from) * done, Hundredths * total);
    };
}
