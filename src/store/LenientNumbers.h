#pragma once

#include <QString>
#include <QStringView>
#include <optional>

// Reads the number that a text begins with, as authors write numbers in prose and in number boxes.
// Spaces, tabs and line feeds are skipped wherever they stand; then digits, one decimal point with
// a fraction and an exponent are read up to the first character that cannot continue them. There
// is no sign. A text that does not begin with a number gives 0. A carriage return ends the number.
double lenientNumber(QStringView text);

// The same for a measure, which may have the comma of French instead of the point.
double lenientMeasure(QString text);

// The paragraph whose number it is, rounded; nothing when it is above 2000.
std::optional<int> lenientParagraph(QStringView text);

// Whole number nearest to value; a half goes to the even neighbour. Clamped to the range of int.
int roundHalfEven(double value);

// Whole number nearest to value; a half goes away from zero. Clamped to the range of int.
int roundHalfAway(double value);
