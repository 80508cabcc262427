#pragma once

#include "platform/Progress.h"
#include "richtext/FindText.h"
#include "richtext/Replacements.h"
#include "store/Variables.h"

#include <QList>
#include <functional>

class RichTextBox;

// Replacing parts of the texts of paragraphs.

// Every match of needle in a text, from the start, to be replaced by another text. The search goes
// on behind each replacement: what it has brought in is not searched, but counts for whether what
// follows is a whole word.
QList<Replacement> replacementsOfAll(const QString &text, const QString &needle, const QString &by,
                                     FindOptions options);

// What is to be replaced in the text of paragraph n. Asked more than once for the same text.
using ReplacementsIn = std::function<QList<Replacement>(int n, const QString &text)>;

// Replaces in the stored texts of written paragraphs, in all or none of them, and in the box, which
// shows the current one. That one must have been saved before, and is saved again; it is empty
// afterwards and not Written when nothing is left of it, while others stay Written. Returns how
// much was replaced. Throws as rewriteParagraphs; and FileError when all is replaced but the
// current paragraph, changed in the box, could not be saved from it. title is what the history
// calls it.
int replaceInParagraphs(Variables &variables, RichTextBox &current, const QString &title,
                        const QList<int> &numbers, const ReplacementsIn &replacementsIn,
                        const Progress &progress);
