#pragma once

#include "language/typography/TypographyRules.h"

// The rules while a line is typed. A key that ends what a rule is about lets the rule act: a space
// behind a word or a colon, the sign itself for ! and ?, the closing quotation mark for both, the
// end of its first sentence for a line that somebody says.

// What the key before the caret, in the line, has made necessary of these kinds; nothing that was
// so before it, which the author may have taken back. previous is the line before; both are without
// their breaks. Positions are in the line, none behind the caret. Nothing within a tag that is
// being typed. Takes the same time for long lines.
QList<TypographyMend> typedMends(const QString &line, qsizetype caret, const QString &previous,
                                 const TypographyRules &rules, const TypographyKinds &kinds);
