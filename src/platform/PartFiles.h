#pragma once

#include <QString>

class FileClaim;

// A file that is being written lies beside its place as "livre.htm.usmira-part" or
// "livre.htm.usmira-part.AbCdEf": an ending that nobody else gives to a file.

// The name for the file that is to replace target.
QString partOf(const QString &target);

// Waits until this program is the only one that has asked so for a folder: for what must not be
// done twice at once. Nobody waits longer than two seconds, or where the system knows no claims.
void waitToClaim(FileClaim &claim, const QString &folder);

// Removes from a folder what programs that were killed have left half written. In a folder that no
// other program works in that is all there is; elsewhere, what a running program still writes
// stays, and where the system cannot tell, everything.
enum class PartsIn { OwnFolder, AnyFolder };
void removeLeftParts(const QString &folder, PartsIn where);
