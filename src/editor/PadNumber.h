#pragma once

#include <QString>

// A number as the lists show it, right-aligned in a proportional font: two spaces for a digit.
QString PadNumber(int n);
