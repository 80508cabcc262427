#pragma once

#include "platform/Progress.h"
#include "store/Variables.h"

#include <QByteArray>
#include <functional>
#include <optional>

class RichTextBox;

// Rewrites the texts of paragraphs where they are stored: all of them, or none.

// Called with a paragraph's stored text. Gives nothing when that stays as it is, byte for byte;
// else it leaves the new text in the box, which is no one's else, and gives the index entry that
// belongs to it.
using Rewrite =
    std::function<std::optional<QString>(int n, const QByteArray &rtf, RichTextBox &box)>;

// How many of these texts would be rewritten, without writing. Throws UnreadableTexts.
int countRewritten(const Variables &variables, const QList<int> &numbers, const Rewrite &rewrite,
                   const Progress &progress);

// The numbers must be of written paragraphs, and what the author typed must have been saved. What
// stays Written and fixed is as before. Throws UnreadableTexts when one cannot be read, else
// UsmiraError, and then nothing has changed. title is what the history calls it.
void rewriteParagraphs(Variables &variables, const QString &title, const QList<int> &numbers,
                       const Rewrite &rewrite, const Progress &progress);
