#pragma once

#include <QString>
#include <QStringView>

// Text that comes from anywhere, as a document can hold it: every kind of line or paragraph break
// is one LF; other control characters except the tab, object placeholders and the characters by
// which QTextDocument marks its frames are left out; half surrogates are U+FFFD.
QString cleanedText(QStringView text);
