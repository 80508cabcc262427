#pragma once

#include "store/Variables.h"

#include <QByteArray>

// The open adventure as one JSON object on one line. A text that cannot be read is empty there, and
// "damaged". Throws FileError when the file cannot be read at all.
QByteArray stateReport(const Variables &variables);
