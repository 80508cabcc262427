#pragma once

#include <functional>

// Told how far a long work is: done of total, again and again.
using Progress = std::function<void(int done, int total)>;
