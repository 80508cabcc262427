#pragma once

#include <QString>

// Showing paragraphs, starting, and what the window keeps in memory, on the adventure at path. The
// last two run this program again, as --first-paint, --memory and --memory-of-an-empty-edit.
void printWindowFigures(const QString &path, const QString &folder);

// The part of such a second run. False when mode is none of them.
bool runAsChild(const QString &mode, const QString &path, const QString &folder);
