#pragma once

#include "reading/BookStatistics.h"
#include "reading/RandomReadings.h"

#include <QString>
#include <QStringList>
#include <functional>

// Statistics in French words.

// How many it has of everything, and what random readings of it come to; a sentence a line.
QStringList statisticsSentences(const BookStatistics &book, const RandomReadings &readings);

// These, and all that stands in tables: columns with tabs between them under their names, and an
// empty line before each table. words gives a paragraph's first words.
QStringList statisticsLines(const BookStatistics &book, const RandomReadings &readings,
                            const std::function<QString(int)> &words);

// The written paragraphs that no reading met, ascending.
QList<int> neverMet(const BookStatistics &book, const RandomReadings &readings);

// How many paragraphs give so many choices.
QMap<int, int> choiceCounts(const BookStatistics &book);

// "12,3 %", of all readings; empty without any.
QString shareOf(int readings, const RandomReadings &all);

// "1, 5, 12".
QString numberList(const QList<int> &numbers);
