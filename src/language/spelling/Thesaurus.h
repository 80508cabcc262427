#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// Words of the same meaning, from the files that the system has for a language: an index, where
// each line is a word, a bar and the place of its entry in the other file, and the entries, each
// the word and the number of its meanings, then a line for each: "(Nom)|glaive|rapière".
class Thesaurus
{
public:
    struct Meaning {
        QString kind; // "Nom"
        QStringList words;
        bool operator==(const Meaning &) const = default;
    };

    // Where the system has them, and the folder that the program may carry with it.
    static QStringList folders();

    // Finds the files for a dictionary's name, and reads the index. One that cannot be read, or is
    // in another encoding than UTF-8, has no words.
    explicit Thesaurus(const QString &language, const QStringList &folders = Thesaurus::folders());

    bool isThere() const { return !m_index.isEmpty(); }

    // In any case of letters; nothing for a word that it does not have.
    QList<Meaning> meanings(const QString &word) const;

private:
    QByteArray m_index;
    QString m_entries; // the path of their file
};
