#pragma once

#include <QString>
#include <optional>

// A piece of HTML code that the author keeps in a text file: the code at the start of a page and
// the like.
struct CodeSnippet {
    enum class Encoding { Utf8, Windows1252 };

    QString text; // lines end with LF, as in a text box
    // As its file has it; nothing when there is no file, or only ASCII in it.
    std::optional<Encoding> encoding;
};

// A file is read as UTF-8 when it is valid UTF-8, else as Windows-1252; one that is not there gives
// an empty text. Throws FileError (Read), also for files above 1 MiB.
CodeSnippet readSnippet(const QString &path);

// Saves a text and a line end behind it, which comes in addition each time: required. The file gets
// the encoding that the text was read in; without one, Windows-1252 when the text declares it and
// UTF-8 otherwise, which is also taken when Windows-1252 lacks a character. Throws FileError.
void saveSnippet(const QString &path, const CodeSnippet &snippet);
