#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

// The two files of a dictionary: fr.aff says how words are inflected, fr.dic has the words.
struct DictionaryFiles {
    QString name; // "fr", "en_US"
    QString affixes;
    QString words;
    bool operator==(const DictionaryFiles &) const = default;
};

// Where the system has its dictionaries, and the folder that the program may carry with it.
QStringList dictionaryFolders();

// Those in the folders, by name. Of several names of the same file the first one counts: "fr" and
// not "fr_CA".
QList<DictionaryFiles> installedDictionaries(const QStringList &folders = dictionaryFolders());

// The one of this name, which may also be one of the other names of its file.
std::optional<DictionaryFiles> findDictionary(const QString &name,
                                              const QStringList &folders = dictionaryFolders());

// What an author reads of a dictionary: "français (fr)".
QString dictionaryCaption(const QString &name);

// Reads both files, since the library takes whatever it is given. Throws FileError (Read), also
// for one that is empty, cut, or not of the encoding that it names.
void refuseDamagedDictionary(const DictionaryFiles &files);
