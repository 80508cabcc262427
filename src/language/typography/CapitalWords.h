#pragma once

#include <QString>
#include <functional>

// Capitals at the start of a sentence that lack their accent.

bool mayLackAccent(QChar capital);

// The accented capital that a word, "Etat", begins with, null when it stays as it is. With isWord,
// which knows words in small letters: when the word is none and exactly one with an accent on this
// letter is. Without it only for words of a short list.
QChar accentedCapital(const QString &word, const std::function<bool(const QString &)> &isWord);

// Whether an A before this word, which may be elided, is the preposition. "A mangé" is none, and
// neither is "A man": it goes by a list of words that stand behind À.
bool followsPreposition(const QString &word, bool elided);
