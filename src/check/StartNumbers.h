#pragma once

#include <QList>
#include <QString>

struct Variables;

// The numbers where readings start, as the author types them.

struct StartNumbers {
    QList<int> numbers; // each once, 1..2000
    QString refused;    // the first word that is no such number
};
// Between the numbers are blanks, commas or semicolons.
StartNumbers startNumbers(const QString &text);

// What is to be said of the starts of the open adventure: those without a text, and where readings
// start when none of them has one. Empty when all is well.
QString startsNote(const Variables &variables);
