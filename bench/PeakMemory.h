#pragma once

#include <functional>

// How far the memory of the program rises above what it was before action, in megabytes. 0 where
// the system does not tell.
double peakMegabytes(const std::function<void()> &action);
