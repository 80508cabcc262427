#pragma once

class QByteArray;
class QString;
struct Variables;

// Throws FileError (Write) when an export to path would replace a file of the adventure itself: the
// adventure's file, or a working file of any adventure. Links are followed, a file that does not
// exist yet is known by its place, and a hard link is the file that it shares. Other files in the
// working folder are the author's.
void refuseOwnFiles(const Variables &variables, const QString &path);

// Writes a file of these bytes, synced, where a link leads. Throws FileError, also when it is one
// of the adventure's own; what was there before still is.
void writeExport(const Variables &variables, const QString &path, const QByteArray &bytes);

// The name that an export into one file proposes: the adventure's without its extension.
QString proposedName(const Variables &variables);
