#pragma once

#include <QString>

// Makes the file calls of the program and of Qt go wrong. Add FaultyCalls.cpp to the sources of the
// test itself: its functions then stand in front of those of the system. Counted are opening for
// writing, writing, syncing, renaming, removing and making folders under a prefix.
namespace FaultyCalls
{
enum class Fault {
    None,
    FailOnce, // the call fails, those after it work
    FailOn,   // it fails and so do all after it, as on a disk that has gone
    Kill,     // the process ends there; a write is torn in the middle
};

// From now on the call-th call, counted from 1, goes wrong.
void arm(const QString &prefix, Fault fault, int call);

// Ends it and gives the number of calls seen.
int disarm();

// For QSKIP where the program makes only plain calls, which reach the system by other functions or
// ignore what fails.
#ifdef USMIRA_PORTABLE
constexpr bool OutOfReach = true;
#else
constexpr bool OutOfReach = false;
#endif

// Exit status of a killed process.
constexpr int Killed = 77;
} // namespace FaultyCalls
