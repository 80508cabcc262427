#pragma once

#include <QString>
#include <QStringList>
#include <stdexcept>

// The call itself is wrong: an unknown command, a missing argument, an open quote.
class UsageError : public std::runtime_error
{
public:
    explicit UsageError(const QString &text) : std::runtime_error(text.toStdString()) {}
};

// Splits a line into words as a shell does: blanks separate, '...' is taken as it stands, "..."
// knows \" and \\, a backslash outside quotes takes the next character, # at the start of a word
// begins a comment. Throws UsageError on an open quote.
QStringList splitCommand(const QString &line);
