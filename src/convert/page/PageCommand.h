#pragma once

#include "convert/ExportCommand.h"

#include <optional>

// Writes the book as a page for reading as a command, with a sheet for the reader's notes or
// without. Gives what is to be said of it, often nothing; no value where no file was written.
std::optional<QString> exportToPage(const ExportCommand &command, const ExportRequest &request,
                                    bool sheet);
