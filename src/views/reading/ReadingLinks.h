#pragma once

#include "check/StrongComponents.h"
#include "views/reading/ReadingPage.h"

struct Variables;

// The references in the text that is on the page, as the index reads them. taken: where choices
// lead that were made here before.
QList<ReadingPage::Link> linksOf(const ReadingPage &page, const Variables &variables,
                                 const ParagraphSet &taken);
