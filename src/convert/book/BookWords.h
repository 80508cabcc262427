#pragma once

#include <QString>

// What stands in a book beside the author's own texts, in the language of the book and not in that
// of the windows: French for a French book, else English.
struct BookWords {
    QString cover;
    QString dedication;
    QString before;
    QString after;
    QString contents;
    QString numbers; // the list of the numbers
    QString start;   // where the texts of the book begin

    static BookWords of(const QString &language);
};

// Whether the language's code says French.
bool isFrench(const QString &language);
