#pragma once

#include <QString>

// What it costs to check the adventure at path: its plain texts at hand, and with reading them.
// Works in folder.
void printCheckFigures(const QString &path, const QString &folder);
