#pragma once

#include "convert/rtf/RtfCompilation.h"

class WorkReport;
class Prompts;

// The command behind the dialog and behind scripts: compiles the paragraphs first..second, as they
// were typed, into an RTF document at path. False when the path is refused, a text cannot be read
// or the document cannot be saved: the author has been told, and what was at path is still there.
//
// The current paragraph must have been saved.
bool compileToRtf(const Variables &variables, Prompts &prompts, WorkReport &report, double first,
                  double second, const NumberStyle &style, const QString &path);
