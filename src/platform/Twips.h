#pragma once

#include <QtGlobal>

// Screen distances are given in twips, 1/1440 inch. Qt measures layout in pixels of 96 to an inch
// and scales them to the screen, so that 15 twips are always one of Qt's pixels.
namespace Twips
{
constexpr double PerPixel = 15.0;
constexpr double PerCentimetre = 1440.0 / 2.54;

constexpr int toPixels(int twips)
{
    return qRound(twips / PerPixel);
}
constexpr int fromPixels(int pixels)
{
    return qRound(pixels * PerPixel);
}
} // namespace Twips
