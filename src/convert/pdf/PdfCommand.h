#pragma once

#include "convert/ExportCommand.h"
#include "convert/pdf/PageSetup.h"
#include "store/extras/AdventureExtras.h"

#include <optional>

// What the author chooses of a printed book. The setup has no fault.
struct PdfChoice {
    BookFacts facts; // with a title
    PageSetup setup;
};

// Makes a print-ready PDF of the paragraphs as a command. Gives what was announced beside their
// number, such as fonts that are missing; nothing when there is no PDF.
std::optional<QString> exportToPdf(const ExportCommand &command, const ExportRequest &request,
                                   const PdfChoice &choice);
