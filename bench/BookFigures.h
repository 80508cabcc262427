#pragma once

#include <QString>

// Publishing the adventure at path as a book, beside what pandoc takes for the same where it is
// installed. Works in folder.
void printBookFigures(const QString &path, const QString &folder);
