#pragma once

#include "store/SessionState.h"

class RichTextBox;

// What is kept in the folder "Session" while something is unsaved, so that a program that is killed
// loses no more than the last seconds of typing.

// The state of the open adventure counts from now on; nothing is written when the one that is there
// says the same already. Throws FileError (Write), and the old state stays.
void keepSession(const Variables &variables);
// The same with another state than sessionState() gives, but the extras of variables.
void keepSession(const Variables &variables, const SessionState &state);

// The same where a failure stops nothing: what was changed is still in memory, and the next change
// tries again.
void tryKeepSession(const Variables &variables);

// Writes what the adventure has beside its paragraphs, where the adventure file has it not, to the
// file that the session state of variables names. Throws FileError (Write).
void keepExtras(const Variables &variables);

// Removes those that the session state does not name. What cannot be removed is harmless.
void removeOtherExtras(const QString &workingFolder);

// Those that a state names; nothing when it names none, or they are not there as they were.
std::optional<AdventureExtras> keptExtras(const QString &workingFolder, const SessionState &state);

// Notes what the adventure file will be once the save under way has succeeded. A failure stops
// nothing: killed then, the program sets aside what has been saved as well.
void noteSave(const Variables &variables, OpenedFile &saved);

// Writes the text of paragraph n as it is in the box, beside its working file. Throws FileError.
void keepTyped(const Variables &variables, int n, const QByteArray &rtf);

// The box as it is, while it has unsaved changes, for the next start to put into it; no flag
// changes. Throws UsmiraError.
void keepBox(const Variables &variables, const RichTextBox &box);

// Nothing is unsaved any more: state and box are removed. What cannot be removed is harmless.
void forgetSession(const QString &workingFolder);

// Moves state and box to a folder, the state first: without it the rest counts for nothing. Throws
// FileError at the first that stays.
void moveSession(const QString &workingFolder, const QString &folder);

// The state as it was kept; nothing when there is none, or it cannot be understood.
std::optional<SessionState> keptSession(const QString &workingFolder);
