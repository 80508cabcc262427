#pragma once

#include <QString>

// What the underlined references cost at each key in a line of 50,000 characters, and the list of
// paragraphs to refer to in the adventure at path. Works in folder.
void printReferenceFigures(const QString &path, const QString &folder);
