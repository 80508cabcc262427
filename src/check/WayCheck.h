#pragma once

#include "check/Finding.h"

struct BookWays;

// What is found about the ways through a book, from its references alone: paragraphs that no
// reading reaches, traps, a book without an ending. In no order; without texts.
QList<Finding> wayFindings(const BookWays &ways);
