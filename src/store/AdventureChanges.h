#pragma once

#include "store/AdventureEvents.h"
#include "store/Variables.h"

// The few functions that set what an adventure's listeners follow, and tell them. Marks, the
// target phrase and the extras are kept for a start after a crash as well, see Session.h.

// Whether saving has something to write: a text or a fixed mark.
bool hasUnsavedChanges(const Variables &variables);

// The texts are no longer those of the adventure file.
void setModified(Variables &variables);

// The adventure file holds everything.
void setSaved(Variables &variables);

// Fixes paragraph n, 0..2000, or frees it. The mark alone leaves AdventureModified as it is:
// required; saving writes it all the same.
void setFixed(Variables &variables, int n, bool fixed);

// Makes phrase, with the index of references that goes with it, the target phrase.
void setTargetPhrase(Variables &variables, const QString &phrase,
                     const ParagraphArray<QString, 2001> &index);

// What belongs to the adventure beside its paragraphs is this from now on, as the file will have
// it. Throws LimitError where the file cannot have it: a number above 2000, or too much of it.
void changeExtras(Variables &variables, const AdventureExtras &extras);
