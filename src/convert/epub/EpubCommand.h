#pragma once

#include "convert/ExportCommand.h"
#include "convert/epub/EpubPages.h"

// Writes the book as an EPUB as a command.
bool exportToEpub(const ExportCommand &command, const ExportRequest &request,
                  const BookFacts &facts, EpubPages::Files files);
