#pragma once

#include "convert/ExportCommand.h"
#include "convert/epub/EpubPages.h"

#include <QDateTime>
#include <optional>

// What the author chooses of an EPUB.
struct EpubChoice {
    BookFacts facts;
    EpubPages::Files files = EpubPages::Files::Hundreds;
    QDateTime modified = {}; // invalid: when the adventure was saved, or now where it is not
};

// Writes the book as an EPUB as a command. Gives what is to be said of it, often nothing; no value
// where no file was written.
std::optional<QString> exportToEpub(const ExportCommand &command, const ExportRequest &request,
                                    const EpubChoice &choice);
