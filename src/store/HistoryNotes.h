#pragma once

#include "store/CommandHistory.h"

// How commands come into the history, see CommandHistory.

// Writes a step, to be on the disk after syncFileSystem(), and gives the command that it takes
// back; not kept when it cannot be written. textBefore is that of writeStep().
CommandHistory::Command noteStep(const Variables &variables, int id, HistoryStep &step,
                                 const std::function<QByteArray(int)> &textBefore);

// The history once this was done as well. The same history when the step changes nothing; one in
// which nothing can be taken back when it cannot be written.
CommandHistory historyWith(const Variables &variables, HistoryStep step,
                           const std::function<QByteArray(int)> &textBefore);

// What paragraph n is known by now, with the checksum of its text. Throws UsmiraError when that
// cannot be read.
ParagraphFacts storedState(const Variables &variables, int n);

// Another text was put into the box of the current paragraph, which is not saved yet: a command of
// its own, which takes the paragraph from what it was, with this text, to what the box says.
struct LoadedParagraph {
    QString title;
    bool readable = true; // else nothing can bring back what there was
    QByteArray before;    // RTF; empty: there was no text
    QByteArray after;
    QString referencesBefore;
    QString referencesAfter;
};
void noteLoaded(Variables &variables, const LoadedParagraph &loaded);

// The command that was done last has also led to the text that paragraph n has now. What cannot be
// noted does no harm: the paragraph counts as edited since then.
void amendLast(Variables &variables, int n);
