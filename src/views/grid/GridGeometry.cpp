#include "views/grid/GridGeometry.h"

#include "store/Variables.h"

#include <algorithm>
#include <cmath>

using namespace GridGeometry;

namespace
{
int rowOf(int n)
{
    return (n - 1) / Columns;
}
} // namespace

// The division by 6 while a row holds 12 is required.
int gridScrollMaximum(int maxShown)
{
    return maxShown > Cells ? (maxShown - Cells) / 6 + 1 : 0;
}

int firstOnPage(int scrollValue)
{
    return Columns * scrollValue + 1;
}

QPoint cellOrigin(int n, int scrollValue)
{
    return {Margin + PitchAcross * ((n - 1) % Columns),
            Margin + PitchDown * (rowOf(n) - scrollValue)};
}

std::optional<int> numberAt(double x, double y, int scrollValue)
{
    const int across = static_cast<int>(std::floor(x)) - Margin;
    const int down = static_cast<int>(std::floor(y)) - Margin;
    if (across < 0 || down < 0)
        return std::nullopt;
    const int column = across / PitchAcross;
    const int row = down / PitchDown;
    const bool between = across % PitchAcross > CellWidth || down % PitchDown > CellHeight;
    const int n = Columns * row + column + firstOnPage(scrollValue);
    if (between || column >= Columns || row >= Rows || n > Variables::LastParagraph)
        return std::nullopt;
    return n;
}

int scrollValueShowing(int n, int scrollValue)
{
    return std::clamp(scrollValue, std::max(0, rowOf(n) - Rows + 1), rowOf(n));
}
