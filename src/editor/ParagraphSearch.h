#pragma once

#include "store/Variables.h"

#include <QList>
#include <optional>

// Where the navigation commands go. Numbers run from 0 to 2000; nothing is found past either end.
std::optional<int> nextTyped(const Variables &variables, int from);
std::optional<int> previousTyped(const Variables &variables, int from);
std::optional<int> nextEmpty(const Variables &variables, int from);
std::optional<int> previousEmpty(const Variables &variables, int from);

// The first number after from, wrapping from 2000 to 1 and ending with from itself, that is neither
// written nor referred to by a written paragraph. 0 is never given.
std::optional<int> firstFree(const Variables &variables, int from);

// The written paragraphs, 0 included, ascending.
QList<int> writtenParagraphs(const Variables &variables);

// How many paragraphs are written. Paragraph 0 is never counted, on purpose: authors keep notes
// there.
int countWritten(const Variables &variables);
