#pragma once

#include <QElapsedTimer>
#include <QString>
#include <algorithm>
#include <cstdio>
#include <vector>

// Prints one figure: name, value and unit, separated by tabs.
inline void printFigure(const QString &name, double value, const QString &unit)
{
    std::printf("%s\t%.4g\t%s\n", qPrintable(name), value, qPrintable(unit));
    std::fflush(stdout);
}

// Milliseconds that action takes: the median of several runs, since the machine is noisy.
// prepare runs before each of them, unmeasured.
template <typename Prepare, typename Action>
double medianMilliseconds(int runs, Prepare prepare, Action action)
{
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        prepare();
        QElapsedTimer timer;
        timer.start();
        action();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
    return times.at(static_cast<std::size_t>(runs / 2));
}
