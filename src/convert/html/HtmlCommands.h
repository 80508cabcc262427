#pragma once

#include "convert/ExportCommand.h"
#include "convert/html/HtmlExport.h"

// The HTML exports as commands.

// When the file cannot be opened at all the author is told nothing: required, it counts as a file
// dialog that was cancelled.
bool exportToOneFile(const ExportCommand &command, const ExportRequest &request,
                     const HtmlCodes &codes);

// Into the folder request.place.
bool exportToManyFiles(const ExportCommand &command, const ExportRequest &request,
                       const HtmlCodes &codes, const QString &prefix);
