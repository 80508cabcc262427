#pragma once

#include <QString>

// Opening, reading, saving and indexing the adventure at path, without a window. Works on copies in
// folder.
void printStoreFigures(const QString &path, const QString &folder);
