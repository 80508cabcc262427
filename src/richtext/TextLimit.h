#pragma once

#include <QtGlobal>

// The most bytes that the RTF of one text has. What is larger is neither read nor written, so that
// whatever was written can be read again, and no file can ask for more memory than there is.
constexpr qint64 LargestText = 32LL * 1024 * 1024;
