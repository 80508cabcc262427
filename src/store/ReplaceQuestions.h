#pragma once

class OpenedFile;
class Prompts;
struct Variables;

// What is asked before a save puts a new file in the place of the adventure.
struct ReplaceAnswer {
    bool allowed = false;
    bool otherVersionKept = false; // beside the adventure
};

// Asks when the adventure on the disk is no longer the one that was opened, and keeps that one as
// "Le Loup (autre version).usm"; when it is marked read-only; and when its file has other names,
// which will keep the old text. expected is what was last seen under its name, null when nothing
// is known of it. Throws FileError when the other version cannot be kept.
ReplaceAnswer askToReplace(const Variables &variables, OpenedFile *expected, Prompts &prompts);
