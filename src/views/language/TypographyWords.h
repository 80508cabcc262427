#pragma once

#include "language/typography/TypographyRules.h"
#include "widgets/BoldWords.h"

// The words around a mend on one line, as they are and as they would be, with what changes in bold.
// There blanks and the ends of lines are made visible: ␣ is a space, ⍽ one that does not break, a
// narrow one has a stroke behind it.
BoldWords wordsBefore(const QString &text, const TypographyMend &mend);
BoldWords wordsAfter(const QString &text, const TypographyMend &mend);

// What these signs mean, in a sentence.
QString typographySigns();
