#pragma once

#include "store/Variables.h"

#include <QByteArray>

// The doubtful references of the open adventure, one a line: paragraph number, position in its
// text, the words, and what is doubtful, with tabs between. Throws UnreadableTexts with every text
// that cannot be read.
QByteArray doubtfulList(const Variables &variables);
