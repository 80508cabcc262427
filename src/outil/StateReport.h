#pragma once

#include "store/Variables.h"

#include <QByteArray>

// The open adventure as one JSON object on one line. Throws FileError or FormatError when a
// paragraph cannot be read.
QByteArray stateReport(const Variables &variables);
