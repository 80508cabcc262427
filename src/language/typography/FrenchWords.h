#pragma once

#include <QString>
#include <functional>

// Whether a word is in the French dictionary that is installed, letter for letter; an empty
// function where there is none. The dictionary is read when the first word is asked about, which
// takes some 50 ms, and kept for as long as the function; a damaged one has no words.
std::function<bool(const QString &word)> frenchWords();
