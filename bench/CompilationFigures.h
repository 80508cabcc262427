#pragma once

#include <QString>

// Compiling the adventure at path into one RTF document in folder: time and memory.
void printCompilationFigures(const QString &path, const QString &folder);
