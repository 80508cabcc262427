#pragma once

#include "language/spelling/AddedWords.h"
#include "language/spelling/SpellingWords.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>
#include <memory>

class Dictionary;

// Which words are right: those of the dictionary, the author's own and the adventure's. What it has
// found of a word it remembers.
//
// French is looked at as it is written: a word that is unknown as a whole may be an elision and a
// word ("d'Elric"), or words joined by hyphens; and a capital need not have its accent ("Ecole",
// "EPEE"). The ligature is no accent: "coeur" is doubtful.
class Speller
{
public:
    struct Options {
        bool skipsCapitals = true; // words of capitals are right
        bool skipsDigits = true;   // words with digits are
        bool operator==(const Options &) const = default;
    };

    // Without a dictionary every word is right.
    void setDictionary(std::shared_ptr<const Dictionary> dictionary);
    bool hasDictionary() const { return m_dictionary != nullptr; }

    void setOptions(const Options &options);
    const Options &options() const { return m_options; }
    void setOwnWords(const QStringList &words);
    void setAdventureWords(const QStringList &words);

    // The parts of a word that are doubtful, in the places of the text that the word stands in; an
    // empty list for a word that is right. A part is a whole word between two hyphens or behind an
    // elision, or the word itself.
    QList<SpellingWord> doubts(const SpellingWord &word) const;

    // Whether nothing of a word is doubtful.
    bool knows(QStringView word) const;

    // Whether the dictionary or the author has the word letter for letter, accents and all; no
    // option, elision or hyphen counts. Without a dictionary nothing is.
    bool isWord(QStringView word) const;

private:
    struct Part {
        qsizetype position;
        qsizetype length;
    };
    using Parts = QList<Part>;
    const Parts &verdict(const QString &word) const;
    Parts judge(const QString &word) const;
    Parts judgeRest(const QString &word, qsizetype from) const;
    Parts judgeJoined(const QString &word) const;
    bool isRight(const QString &word) const;
    bool isRightWithAccents(const QString &word) const;
    bool isSkipped(const QString &word) const;
    bool hasLiterally(const QString &word) const;
    void forget() const { m_verdicts.clear(); }

    std::shared_ptr<const Dictionary> m_dictionary;
    Options m_options;
    AddedWords m_ownWords;
    AddedWords m_adventureWords;
    mutable QHash<QString, Parts> m_verdicts;
};
