#pragma once

class QString;

// The file behind a name: where a write to path ends. A whole chain of links is followed, also one
// that leads to no file yet, and also those of the folders. Throws FileError (Write) when the links
// lead in a circle, or to a name that is no text, which Qt would take for another one.
QString finalPath(const QString &path);

// True when both paths lead to one file: to one place, whether a file is there or not, or to two
// names of the same file. Throws as finalPath() does.
bool isSameFile(const QString &one, const QString &other);

// How many names the file at path has (hard links); 0 when there is none.
int namesOf(const QString &path);
