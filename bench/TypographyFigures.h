#pragma once

#include <QString>

// How long it takes to look at the typography of the adventure at path, and to mend it. folder is
// for working files.
void printTypographyFigures(const QString &path, const QString &folder);
