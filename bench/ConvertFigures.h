#pragma once

#include <QString>

// Converting the paragraphs of the adventure at path for publication. Writes no file.
void printConvertFigures(const QString &path);
