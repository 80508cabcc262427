#pragma once

#include "renumber/RenumberMap.h"

#include <array>
#include <functional>
#include <optional>

// What each renumbering command does to the numbers, as plain functions. Numbers are 1..2000 and
// low <= high; unmixable and written are the arrays of Variables.

using Marks = ParagraphArray<quint8, 2002>;

// a and b change places.
RenumberMap SwapMap(int a, int b);

// The numbers between low and high, both of which stay, change places at random. random gives
// numbers within [0, 1). Fixed paragraphs stay.
RenumberMap MixMap(int low, int high, const Marks &unmixable,
                   const std::function<double()> &random);

enum class Towards { Lower, Higher };

// The block low..high moves by delta >= 1 and stays within 1..2000; the paragraphs where it arrives
// take the numbers that it leaves. Fixed paragraphs stay, and the others step over them.
RenumberMap BlockMoveMap(int low, int high, int delta, Towards towards, const Marks &unmixable);

// The written paragraphs of low..high get consecutive numbers from low on, in their order, and the
// holes come behind them. Fixed paragraphs stay. Nothing when the range has no paragraph to move,
// or nothing but such paragraphs; holes at its end alone give a map that moves nothing.
std::optional<RenumberMap> PackHolesMap(int low, int high, const Marks &written,
                                        const Marks &unmixable);
