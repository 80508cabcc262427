#pragma once

#include <QString>
#include <functional>

struct Variables;

// Whether a word is in the French dictionary that is installed, letter for letter, or one that the
// author has added to it or to the adventure; an empty function where there is no dictionary. It is
// read when the first word is asked about, which takes some 50 ms, and kept for as long as the
// function; a damaged one has no words. variables must outlive the function.
std::function<bool(const QString &word)> frenchWords(const Variables &variables);
