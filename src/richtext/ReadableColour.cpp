#include "richtext/ReadableColour.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double leastContrast = 4.5;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

// Relative luminance, 0..1, as it is defined for screens.
double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(double one, double other)
{
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

bool isDark(double page)
{
    return contrast(1, page) > contrast(0, page);
}

QColor lightened(const QColor &colour, int percent)
{
    const auto channel = [percent](int value) { return value + (255 - value) * percent / 100; };
    return {channel(colour.red()), channel(colour.green()), channel(colour.blue())};
}
} // namespace

QColor readableColour(const QColor &colour, const QColor &page)
{
    const double behind = luminance(page);
    QColor readable = colour;
    for (int percent = 5; isDark(behind) && percent <= 100; percent += 5) {
        if (contrast(luminance(readable), behind) >= leastContrast)
            break;
        readable = lightened(colour, percent);
    }
    return readable;
}

bool isDarkPage(const QColor &page)
{
    return isDark(luminance(page));
}
