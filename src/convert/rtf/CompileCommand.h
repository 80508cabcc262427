#pragma once

#include "convert/ExportCommand.h"
#include "convert/rtf/RtfCompilation.h"

#include <optional>

// Compiles paragraphs into an RTF document as a command. Gives what the author is to know of the
// document, mostly nothing; no value: it was not written, and the author has been told.
std::optional<QString> compileToRtf(const ExportCommand &command, const ExportRequest &request,
                                    const NumberStyle &style, RtfLinks links = RtfLinks::Without);
