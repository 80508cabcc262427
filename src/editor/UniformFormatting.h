#pragma once

#include "store/Variables.h"

#include <optional>

class Prompts;
class RichTextBox;
class WorkReport;

// The font and the size that all texts get; what is not given stays as it is in each.
struct UniformFormatting {
    std::optional<QString> fontName;
    std::optional<double> fontSize; // points
};

// The size that was typed, to the half point; nothing outside 1..1638.
std::optional<double> typedFontSize(const QString &size);

// Gives the whole text of the box that font and size. Whether it had not had them all along.
bool makeUniform(RichTextBox &box, const UniformFormatting &formatting);

// The same for all written paragraphs, as they are stored: all or none. Those that have the font
// and the size already are not written. What was typed must have been saved, and the current
// paragraph is to be shown again. A failure is told, and false.
bool makeAllUniform(Variables &variables, Prompts &prompts, WorkReport &report,
                    const UniformFormatting &formatting);

// What the author is told of how many paragraphs that would change, or of why they cannot be.
// Nothing is written.
QString countedUniform(const Variables &variables, WorkReport &report,
                       const UniformFormatting &formatting);
