#pragma once

#include <QStringView>

// A part of a text.
struct TextPart {
    qsizetype position;
    qsizetype length;
};

// The sentence that a part of a text stands in: from the end of the one before, or of the line, to
// its own stop. A very long one is cut on both sides. Without blanks at its ends.
TextPart sentenceAround(QStringView text, TextPart part);

// The first and the last sentence; empty ones of an empty text.
TextPart firstSentence(QStringView text);
TextPart lastSentence(QStringView text);
