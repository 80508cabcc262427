#pragma once

#include <QString>

// Searching and replacing in the adventure at path. folder is for copies of it.
void printSearchFigures(const QString &path, const QString &folder);
