#pragma once

class QString;

// Where a write to path ends: links are followed, also one that leads to no file yet.
QString finalPath(const QString &path);

// True when both paths lead to one file: to one place, whether a file is there or not, or to two
// names of the same file.
bool isSameFile(const QString &one, const QString &other);

// True when the file at path has more names than this one (hard links).
bool hasOtherNames(const QString &path);
