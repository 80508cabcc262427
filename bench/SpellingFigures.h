#pragma once

#include <QString>

// What spelling costs: a key in a long text with all that is underlined there, and the words of the
// whole adventure at path. Works in folder.
void printSpellingFigures(const QString &path, const QString &folder);
