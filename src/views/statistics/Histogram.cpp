#include "views/statistics/Histogram.h"

#include <array>

namespace
{
int barsNeeded(const QMap<int, int> &counts, int width)
{
    return counts.lastKey() / width - counts.firstKey() / width + 1;
}

int widthFor(const QMap<int, int> &counts, int mostBars)
{
    constexpr std::array steps{1, 2, 5};
    for (int tens = 1;; tens *= 10)
        for (const int step : steps)
            if (barsNeeded(counts, tens * step) <= mostBars)
                return tens * step;
}
} // namespace

QList<HistogramBar> histogram(const QMap<int, int> &counts, int mostBars)
{
    QList<HistogramBar> bars;
    if (counts.isEmpty())
        return bars;
    const int width = widthFor(counts, mostBars);
    const int first = counts.firstKey() / width;
    for (int bar = 0; bar < barsNeeded(counts, width); ++bar)
        bars.append({(first + bar) * width, (first + bar + 1) * width - 1, 0});
    for (auto entry = counts.begin(); entry != counts.end(); ++entry)
        bars[entry.key() / width - first].count += entry.value();
    return bars;
}
