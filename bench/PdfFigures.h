#pragma once

#include <QString>

// The adventure at path as a print-ready PDF in folder: time and memory.
void printPdfFigures(const QString &path, const QString &folder);
