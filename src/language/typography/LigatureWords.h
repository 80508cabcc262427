#pragma once

#include <QString>

// A French word with the ligature that it has instead of oe or ae, in the same letter case; empty
// when it has none. before: the word before it, since "vitae" alone is none. The list has the
// words that gamebooks have; what is not in it stays.
QString withLigature(const QString &word, const QString &before);
