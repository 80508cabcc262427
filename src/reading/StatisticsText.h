#pragma once

#include "reading/BookStatistics.h"
#include "reading/RandomReadings.h"

#include <QString>
#include <QStringList>
#include <functional>

// Statistics in French words.

// Writes a paragraph's number, which may be one to be clicked.
using NumberText = std::function<QString(int)>;

// How many the book has of everything, a sentence a line.
QStringList bookSentences(const BookStatistics &book, const NumberText &text);

// What random readings of it come to; none without any.
QStringList readingSentences(const BookStatistics &book, const RandomReadings &readings,
                             const NumberText &text);

// How one gets to an ending.
QStringList endingSentences(const BookStatistics::Ending &ending, const NumberText &text);

// All this but the last, and all that stands in tables: columns with tabs between them under their
// names, and an empty line before each table. words gives a paragraph's first words.
QStringList statisticsLines(const BookStatistics &book, const RandomReadings &readings,
                            const std::function<QString(int)> &words);

// The written paragraphs that no reading met, ascending.
QList<int> neverMet(const BookStatistics &book, const RandomReadings &readings);

// How many paragraphs give so many choices.
QMap<int, int> choiceCounts(const BookStatistics &book);

// "12,3 %", of all readings; empty without any.
QString shareOf(int readings, const RandomReadings &all);

// "1, 5, 12".
QString numberList(const QList<int> &numbers, const NumberText &text);
