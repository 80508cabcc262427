#pragma once

#include <QString>
#include <QStringView>

// Text that comes from anywhere, as a document can hold it: every kind of line or paragraph break
// is one LF; other control characters except the tab, object placeholders and the characters by
// which QTextDocument marks its frames are left out; half surrogates are U+FFFD.
QString cleanedText(QStringView text);

// The name of a font as we write it: one line, without blanks around it, of bounded length. Two
// names that would be written alike are one name.
QString cleanedFontName(const QString &name);
