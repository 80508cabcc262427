#pragma once

#include <QString>

// What it costs to read the adventure at path at random and to count it. Works in folder.
void printReadingFigures(const QString &path, const QString &folder);
