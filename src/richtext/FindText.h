#pragma once

#include <QString>
#include <QStringView>

struct FindOptions {
    bool wholeWord = false; // letters, digits and the underscore make words
    bool matchCase = false;
};

// The 0-based position of the first needle at or after start, or -1. A start below 0 is the
// beginning. An empty needle is never found.
qsizetype findText(QStringView text, const QString &needle, qsizetype start, FindOptions options);

// Whether no word goes on beyond either end of this part of a text.
bool isWholeWord(QStringView text, qsizetype start, qsizetype length);
