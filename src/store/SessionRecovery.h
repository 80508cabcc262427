#pragma once

#include "platform/Progress.h"
#include "store/AdventureFile.h"
#include "store/CommandHistory.h"
#include "store/SessionState.h"

#include <optional>

class Prompts;

// What was unsaved in an adventure when the program was killed.
struct UnsavedWork {
    SessionState state;                    // its extracted texts lie in the working folder
    AdventureContents saved;               // the adventure as it was opened
    std::optional<QByteArray> box;         // RTF of the current paragraph as last typed
    std::optional<AdventureExtras> extras; // unless the adventure has them
    CommandHistory history;                // what can be taken back
};

// Looks at what an earlier program has left in a working folder that nobody else works in, once
// its journal has been recovered. A save that had succeeded is cleaned up after, unseen. Unsaved
// work is offered to the author: it is returned when he wants it, and stays where it is until it is
// saved. All else, and what he does not want, is moved to a folder "Récupération ..." and he is
// told; nothing that the program does not understand is ever removed. Throws FileError, and may be
// called again.
std::optional<UnsavedWork> offerUnsavedWork(const QString &workingFolder, Prompts &prompts);

// Makes it the state, with path, name and prefix. The references of the unsaved texts are read
// anew, those of all texts where the adventure file has none for the phrase; progress is called
// then.
void takeOver(Variables &variables, const UnsavedWork &work, const Progress &progress);

// Places a journal that was left, see recoverJournal(), and tells the author of one that was set
// aside. Throws FileError.
void finishLeftChange(const QString &workingFolder, Prompts &prompts);

// Whether the session of another program lies in a working folder: somebody's unsaved work, unless
// it turns out to be none.
bool hasLeftSession(const QString &workingFolder);
