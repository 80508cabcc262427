#pragma once

class Prompts;
class WorkReport;
struct Variables;

// Writes the adventure as it stands, unsaved changes and all, into a file that the author chooses:
// the way out when its usual place fails. The adventure that is open stays the one it was, with
// what is unsaved. Texts that cannot be read are left out, and the author is told. False when the
// author chose none, or when it could not be written: he has been told, and what was there before
// still is.
//
// The current paragraph must have been saved.
bool saveCopy(const Variables &variables, Prompts &prompts, WorkReport &report);
