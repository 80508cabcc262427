#pragma once

#include "convert/html/HtmlExport.h"

class WorkReport;
class Prompts;

// The HTML exports behind their dialogs and behind scripts: the paragraphs first..second, as they
// were typed. False when a file cannot be read or written: the author has been told, and what was
// there before still is. In the end the view announces how much went where.
//
// The current paragraph must have been saved.

// When the file cannot be opened at all the author is told nothing: required, it counts as a file
// dialog that was cancelled.
bool exportToOneFile(const Variables &variables, Prompts &prompts, WorkReport &report, double first,
                     double second, const HtmlCodes &codes, const QString &path);

bool exportToManyFiles(const Variables &variables, Prompts &prompts, WorkReport &report,
                       double first, double second, const HtmlCodes &codes, const QString &folder,
                       const QString &prefix);
