#pragma once

#include <QString>

// Converting the adventure at path to HTML and publishing it in one file and in many. Works in
// folder.
void printConvertFigures(const QString &path, const QString &folder);
