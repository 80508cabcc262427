#pragma once

#include <QString>

// A text without accents and capitals, for searches that pass over both. Its positions are not
// those of the text.
QString folded(const QString &text);
