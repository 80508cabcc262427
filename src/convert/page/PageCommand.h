#pragma once

#include "convert/ExportCommand.h"

// Writes the book as a page for reading as a command, with a sheet for the reader's notes or
// without.
bool exportToPage(const ExportCommand &command, const ExportRequest &request, bool sheet);
