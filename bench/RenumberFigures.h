#pragma once

#include <QString>

// Giving paragraphs other numbers, in the adventure at path. Works on copies in folder, a new one
// for each run, since some file systems are slow to make files where others were just removed.
void printRenumberFigures(const QString &path, const QString &folder);
