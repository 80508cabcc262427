#pragma once

#include <QString>

// Merging the adventure at path into a new one, and splitting it. Works in new folders below
// folder.
void printMergeFigures(const QString &path, const QString &folder);
