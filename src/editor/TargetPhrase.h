#pragma once

#include "store/Variables.h"

class Prompts;
class WorkReport;

// The text that stands before the number of every reference. Authors write each of its spaces as an
// underscore, which can be seen; so no phrase has an underscore.
QString shownPhrase(const QString &phrase);
QString phraseOf(const QString &shown);

// Whether an adventure file can hold the phrase; if not, the author has been told.
bool canKeepPhrase(const QString &phrase, Prompts &prompts);

// Makes phrase, which can be kept, the target phrase of the open adventure, and reads all its
// written texts anew for references. An empty phrase finds none. False when the author stopped it:
// the phrase and the index are then as they were, as on any exception.
bool changeTargetPhrase(Variables &variables, const QString &phrase, WorkReport &report);
