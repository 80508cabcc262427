#pragma once

class Prompts;
struct Variables;

// Back to the adventure as it was last saved; one that never was is empty. The working files go
// only when the adventure can be read: else they may be all that is left of it, and are set aside,
// which the author is told.
void discardChanges(Variables &variables, Prompts &prompts);
