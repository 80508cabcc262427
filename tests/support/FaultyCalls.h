#pragma once

#include <QString>
#include <cerrno>
#include <string>

// Makes the file calls of the program and of Qt go wrong. Add FaultyCalls.cpp to the sources of the
// test itself: its functions then stand in front of those of the system. tests/faults puts the same
// file in front of any program. Counted is every call that changes what lies under a prefix, and
// every sync of it.
namespace FaultyCalls
{
enum class Fault {
    None,
    FailOnce,   // the call fails, those after it work
    FailOn,     // it fails and so do all after it, as on a disk that has gone
    Kill,       // the process ends there; a write is torn in the middle
    KillBefore, // it ends without having begun the call
    KillAfter,  // it ends when the call has been made
    Vanish,     // it works, but "a.usm" under the prefix is called "a.away" from just before it
    Short,      // a write takes half of the bytes and says so; other calls are not counted
};

// From now on the call-th call, counted from 1, goes wrong. With EXDEV only the calls are counted
// that give a file a new name: no other one meets it.
void arm(const std::string &prefix, Fault fault, int call, int error = EIO);
inline void arm(const QString &prefix, Fault fault, int call)
{
    arm(prefix.toStdString(), fault, call);
}

// Ends it and gives the number of calls seen.
int disarm();

// For QSKIP where the program makes only plain calls, which reach the system by other functions or
// ignore what fails.
#ifdef USMIRA_PORTABLE
constexpr bool OutOfReach = true;
#else
constexpr bool OutOfReach = false;
#endif

// From one call to the next where a test ends a process that follows one it has ended: sanitizers
// make that slow, and find nothing more in all calls than in some.
#ifdef USMIRA_SANITIZE
constexpr int Stride = 3;
#else
constexpr int Stride = 1;
#endif

// Exit status of a killed process.
constexpr int Killed = 77;
} // namespace FaultyCalls
