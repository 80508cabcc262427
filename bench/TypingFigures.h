#pragma once

#include <QString>

// What a key costs in a text of 50,000 characters beyond what it costs in a bare QTextEdit, in an
// editor with the adventure at path open.
void printTypingFigures(const QString &path, const QString &folder);
