#pragma once

#include <QByteArray>
#include <QList>
#include <functional>

struct Variables;

// The numbers of a written paragraph at two points of the history, and now.
struct NumberRow {
    int before;
    int after;
    int now;
};

// A row for each paragraph that is written now, by the number after, ascending. A point is a number
// of commands, of those that are done: 0 is when the adventure was opened. Which paragraphs were
// written then is not known.
QList<NumberRow> numberRows(const Variables &variables, qsizetype from, qsizetype to);

// The same as a file for spreadsheets: UTF-8 with its mark, semicolons, CR LF. Columns: number
// before, number after, and what words gives for the number now.
QByteArray numberCsv(const QList<NumberRow> &rows, const std::function<QString(int)> &words);
