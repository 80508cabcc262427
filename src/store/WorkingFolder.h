#pragma once

#include <QString>

// The folder "Dossier Usmira": working files, settings, welcome text, help and code snippets.

// The one beside the program when it exists and can be written, else the one in the user's data
// folder. Ends with the platform's separator; nothing is created.
QString findWorkingFolder(const QString &programFolder);

// Where the bundled documents lie for a program in programFolder: installed, or in the source tree.
QString findBundledDocuments(const QString &programFolder);

// Makes the folder again when it has gone. Whether it can be written shows when it is.
void makeWorkingFolder(const QString &workingFolder);

// Creates the folder when it is not there, and copies the bundled documents that it does not have.
// Later only those are renewed that the author has left as they were; one that he has removed does
// not come back. Failures are ignored: the program starts without.
void prepareWorkingFolder(const QString &workingFolder, const QString &bundledDocuments);
