#pragma once

#include <QPoint>
#include <optional>

// Where the cells of the grid lie, in twips from the upper left corner of the surface. The page
// that is shown has 120 of them; the scroll bar moves it by a row at each step.
namespace GridGeometry
{
constexpr int Columns = 12;
constexpr int Rows = 10;
constexpr int Cells = Columns * Rows;
constexpr int Margin = 120; // left of the first cell and above it
constexpr int PitchAcross = 690;
constexpr int PitchDown = 420;
constexpr int CellWidth = 585; // of what takes a click
constexpr int CellHeight = 330;
} // namespace GridGeometry

// The highest value of the scroll bar; 0 when all numbers are on one page. It leads far beyond the
// last number, to pages without a cell: required.
int gridScrollMaximum(int maxShown);

// The first number on the page.
int firstOnPage(int scrollValue);

// The origin of the cell of number n, which may lie outside the page.
QPoint cellOrigin(int n, int scrollValue);

// The number whose cell has the point; none between the cells, outside of them, and where the
// number would be above 2000.
std::optional<int> numberAt(double x, double y, int scrollValue);

// The value of the scroll bar nearest to scrollValue at which number n is on the page.
int scrollValueShowing(int n, int scrollValue);
