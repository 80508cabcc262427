#pragma once

#include <QString>

// What it costs that commands can be taken back, and taking them back. path is the big adventure.
void printHistoryFigures(const QString &path, const QString &folder);
