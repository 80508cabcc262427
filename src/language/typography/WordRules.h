#pragma once

#include <QString>
#include <functional>

class TypographySource;

// Words that have a ligature, and capitals that lack their accent at the start of a sentence.
// isWord: see TypographyRules.
void mendWords(TypographySource &source, const std::function<bool(const QString &)> &isWord);
