#pragma once

#include "check/StrongComponents.h"
#include "views/reading/ReadingPage.h"

#include <QString>

struct RandomReading;
struct Variables;

// What the reader is told, in French.

// Why no way leads on to one of the paragraphs that were not read.
QString nothingUnread(const Variables &variables, const ParagraphSet &unread);

// How a reading at random ended.
QString randomSentence(const RandomReading &reading);

// Where a link leads.
QString linkTip(const Variables &variables, const ReadingPage::Link &link);
