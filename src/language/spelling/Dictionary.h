#pragma once

#include "language/spelling/DictionaryFiles.h"

#include <QString>
#include <QStringList>
#include <memory>

// The words of a language with all that inflection makes of them, by libhunspell. One thread at a
// time may ask it. Words are in the form of SpellingWord.
class Dictionary
{
public:
    // Takes some 50 ms for French. Throws FileError (Read) when the files cannot be read or are
    // damaged, see refuseDamagedDictionary().
    explicit Dictionary(const DictionaryFiles &files);
    ~Dictionary();
    Dictionary(const Dictionary &) = delete;
    Dictionary &operator=(const Dictionary &) = delete;

    bool has(const QString &word) const;

    // Words that may have been meant, the likeliest first. May take most of a second.
    QStringList suggestions(const QString &word) const;

    // What a word is inflected from.
    QStringList stems(const QString &word) const;

private:
    struct Library;
    std::unique_ptr<Library> m_library;
};
