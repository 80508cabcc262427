#pragma once

#include <QString>

// What trees of references of the adventure at path cost to compute, to lay out and to paint, and
// what a frame costs while the author moves about in them. Works in folder.
void printGraphFigures(const QString &path, const QString &folder);
