#pragma once

#include <QString>

// A cell of a file for spreadsheets: between quotation marks, those in it doubled. What a
// spreadsheet would take for a formula has an apostrophe before it, and stays a text there.
QString csvCell(QString text);
