#pragma once

#include "renumber/RenumberEffect.h"

#include <QString>

struct DoubtfulReference;
struct SplitRequest;

// What a command would do with the numbers in the boxes of its dialog, before it is begun. Nothing
// is read but what is in memory.
struct RenumberPreview {
    QString text;      // what it would do, or why it would not, in French
    NumberSet moved;   // the numbers that would or might become others
    NumberSet leaving; // and the paragraphs that would leave the adventure
};

// As the commands of RenumberCommands take the numbers. What MasterMix draws is not known before;
// of the block move both directions are told where both are possible.
RenumberPreview previewSwap(const Variables &variables, double a, double b);
RenumberPreview previewMix(const Variables &variables, double low, double high);
RenumberPreview previewMove(const Variables &variables, double low, double high, double delta);
RenumberPreview previewPack(const Variables &variables, double low, double high);

RenumberPreview previewSplit(const Variables &variables, const SplitRequest &request);

// Whether a doubtful reference is among those that would be rewritten or left behind: the number
// that is seen or the one that is read would change, or it would be garbled with its text.
bool isConcerned(const Variables &variables, const RenumberPreview &preview,
                 const DoubtfulReference &doubtful);
