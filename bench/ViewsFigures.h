#pragma once

#include <QString>

// What the grid and the proximity scan cost on the adventure at path, of 2000 paragraphs with three
// references each. Works in folder.
void printViewsFigures(const QString &path, const QString &folder);
