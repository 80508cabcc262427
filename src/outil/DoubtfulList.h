#pragma once

#include "store/Variables.h"

#include <QByteArray>
#include <QList>

// The doubtful references of the open adventure, one a line: paragraph number, position in its
// text, the words, and what is doubtful, with tabs between. Notes the numbers of
// the texts that cannot be read.
QByteArray doubtfulList(const Variables &variables, QList<int> &unreadable);
