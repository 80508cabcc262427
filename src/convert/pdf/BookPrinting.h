#pragma once

#include "convert/pdf/PdfCommand.h"

class QWidget;

// Prints the book as a command, with the pages that a PDF would have: asks for the printer in front
// of window, and prints the pages chosen there. False when nothing, or not all, was printed: the
// author has been told, unless he wanted it so.
bool printBook(const ExportCommand &command, const ExportRequest &request, const PdfChoice &choice,
               QWidget &window);
