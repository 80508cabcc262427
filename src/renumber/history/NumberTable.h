#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <functional>

struct Variables;

// The numbers of a written paragraph at two points of the history, and now.
struct NumberRow {
    int before;
    int after;
    int now;
    bool operator==(const NumberRow &) const = default;
};

// A row for each paragraph that is written now, by the number after, ascending. A point is a number
// of commands, of those that are done: 0 is when the adventure was opened. Either may be the later
// one. Which paragraphs were written then is not known.
QList<NumberRow> numberRows(const Variables &variables, qsizetype from, qsizetype to);

// What the columns of such a table are called: the number before, the one after, the first words.
QStringList numberTableHead();

// The same as a file for spreadsheets: UTF-8 with its mark, semicolons, CR LF. words gives
// the first words for the number now.
QByteArray numberCsv(const QList<NumberRow> &rows, const std::function<QString(int)> &words);
