#pragma once

class QString;

// The file behind a name: where a write to path ends. A whole chain of links is followed, also one
// that leads to no file yet, and also those of the folders. Throws FileError (Write) when the links
// lead in a circle.
QString finalPath(const QString &path);

// True when both paths lead to one file: to one place, whether a file is there or not, or to two
// names of the same file. Throws as finalPath() does.
bool isSameFile(const QString &one, const QString &other);

// True when the file at path has more names than this one (hard links).
bool hasOtherNames(const QString &path);
