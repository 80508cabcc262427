#pragma once

#include "language/typography/TypographyRules.h"

class TypographySource;

// The first mend that the editor's menu offers for each doubtful reference of the text.
void mendReferences(TypographySource &source, const QString &phrase);

// Of ascending mends those after which the same references are read from the text, in the same
// order; mends of references stay. In texts in which very many would change them all may go.
QList<TypographyMend> keepingReferences(const QString &text, const QList<TypographyMend> &mends,
                                        const QString &phrase);
