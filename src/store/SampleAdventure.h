#pragma once

class QString;

// The author's own copy of the bundled sample, to play with: made once, in the documents folder,
// or in the data folder where there is no such folder. Gives its path. Throws FileError when there
// is no sample beside the bundled documents, or when it cannot be copied.
QString copyOfSample(const QString &bundledDocuments);
