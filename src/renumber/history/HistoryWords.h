#pragma once

#include "store/CommandHistory.h"

#include <QStringList>

// How windows speak of the history, in French.

// "14:03:22", and the day before it when that is another than today.
QString timeOf(const CommandHistory::Command &command);

// The points of the history, from the opening, or the first that is known, until now, one for each
// command in between.
QStringList pointNames(const CommandHistory &history);

// "faite", "annulée"; or that it can no longer be taken back, or done once more, and why in short.
QString stateOf(const CommandHistory::Command &command, bool undone);

// Why it can no longer, in a sentence; empty when it can.
QString reasonOf(const CommandHistory::Command &command, bool undone);
