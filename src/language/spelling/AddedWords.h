#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

// Words that an author has added to those of the dictionary. A word of small letters is also right
// with a capital and in capitals, a name in capitals alone: "Elric" allows "ELRIC" and no "elric".
class AddedWords
{
public:
    AddedWords() = default;
    explicit AddedWords(const QStringList &words) : m_list(words) {}

    bool has(const QString &word) const;

private:
    void arrange() const;

    mutable QStringList m_list; // until the first word is looked for
    mutable QSet<QString> m_words;
    mutable QSet<QString> m_capitals; // the same words in capitals
};
