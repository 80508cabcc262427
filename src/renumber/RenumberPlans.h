#pragma once

#include "renumber/MapBuilders.h"

#include <QString>
#include <variant>

// What the renumbering commands make of the numbers as they were typed: what is to be done, or why
// it cannot be. A fraction goes to the nearest whole number, a half to the even one; limits in the
// wrong order are exchanged.

// Why not, in the words that the author is told, and the title of the box that tells them.
struct Refusal {
    QString text;
    QString title;
};

template <typename Plan> using Planned = std::variant<Refusal, Plan>;

struct NumberPair {
    int first;
    int second;
};
struct BlockMove {
    int low;
    int high;
    int distance;
    Towards towards;
};

// Two numbers that change places: as they were given, rounded once they are within 1..2000.
Planned<NumberPair> planSwap(double a, double b);

// The lowest and the highest number concerned.
Planned<NumberPair> planMix(double low, double high);
Planned<NumberPair> planPack(double low, double high);

Planned<BlockMove> planMove(double low, double high, double delta, Towards towards);
