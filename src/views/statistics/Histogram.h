#pragma once

#include <QList>
#include <QMap>

// How many values lie from first to last.
struct HistogramBar {
    int first;
    int last;
    int count;
    bool operator==(const HistogramBar &) const = default;
};

// Bars for values, 0 and above, and how often each occurs: at most so many, all equally wide, by a
// width that people count in (1, 2, 5, 10, ...), with those that are empty between them. Without
// any value none.
QList<HistogramBar> histogram(const QMap<int, int> &counts, int mostBars);
