#pragma once

#include "convert/ExportCommand.h"
#include "convert/rtf/RtfCompilation.h"

// Compiles paragraphs into an RTF document as a command.
bool compileToRtf(const ExportCommand &command, const ExportRequest &request,
                  const NumberStyle &style, RtfLinks links = RtfLinks::Without);
