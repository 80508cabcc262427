#pragma once

#include "language/spelling/OwnWords.h"
#include "language/spelling/Speller.h"
#include "language/spelling/Suggestions.h"
#include "language/spelling/Thesaurus.h"
#include "store/extras/AdventureExtras.h"

#include <QObject>
#include <QSet>
#include <QThreadPool>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

class Dictionary;
class Prompts;
struct Variables;

// The spelling of the running program: the dictionary that the author has chosen, his own words,
// and the words of the open adventure. The dictionary is read when it is first wanted, by another
// thread; until then, and where there is none, every word is right.
class Spelling : public QObject
{
    Q_OBJECT

public:
    // The adventure must outlive it.
    explicit Spelling(Variables &variables);
    // Waits for a dictionary that is being read.
    ~Spelling() override;

    struct Choice {
        QString dictionary = QStringLiteral("fr"); // see DictionaryFiles
        Speller::Options options;
        bool operator==(const Choice &) const = default;
    };
    void choose(const Choice &choice);

    // Begins to read the dictionary, unless that has begun; changed() tells when it is there.
    void want();
    // The same, and waits until it is there. False: there is none, see trouble().
    bool bringUp();

    // Why there is no dictionary, in French; empty while there is one, or it was not wanted yet.
    const QString &trouble() const { return m_trouble; }

    const Speller &speller() const { return m_speller; }

    // The doubtful parts of words, but for those that are ignored in paragraph n.
    QList<SpellingWord> doubts(int n, const QList<SpellingWord> &words) const;

    // The same for a text.
    QList<SpellingWord> doubtsIn(int n, const QString &text) const;

    // What may be meant by a word, see Suggestions.
    Suggestions &suggestions() { return m_suggestions; }
    QStringList suggestionsAtOnce(const QString &word) const;

    // What has the same meaning as a word, or as what it is inflected from.
    QList<Thesaurus::Meaning> synonyms(const QString &word);

    // Other programs may have changed the author's own words.
    void refreshOwnWords();

    // Throw UsmiraError: LimitError where there are too many words or one is too long.
    void addToAdventure(const QString &word);
    void addToOwnWords(const QString &word);
    void ignore(int n, const QString &word);

Q_SIGNALS:
    // Other words are doubtful than before; only fewer where nothing has happened but that words
    // were added.
    void changed(bool onlyFewer);
    // The dictionary that is chosen is there and cannot be used.
    void troubled(const QString &frenchText);

private:
    struct Loaded {
        std::shared_ptr<const Dictionary> dictionary;
        QString trouble;
        bool isDamaged = false;
    };
    static Loaded load(const QString &name);
    void take(const QString &name, const Loaded &loaded);
    void followAdventure();
    OwnWords &ownWords();

    Variables &m_variables;
    Choice m_choice;
    Speller m_speller;
    std::shared_ptr<const Dictionary> m_dictionary;
    QString m_trouble;
    enum class State { Unwanted, Loading, Done } m_state = State::Unwanted;
    std::optional<OwnWords> m_ownWords; // once they are wanted
    QStringList m_adventureWords;
    QSet<std::pair<int, QString>> m_ignored;
    std::unique_ptr<Thesaurus> m_thesaurus;
    Suggestions m_suggestions;
    QThreadPool m_thread;
};

// Runs action, which adds a word. Where there is no room for it the author is told so; other
// failures are reported as everywhere.
bool addingWord(Prompts &prompts, const std::function<void()> &action);

// The adventure with one word more among those that are right in all of it. Throws LimitError above
// MostAdventureWords, and for a word that is too long to be one.
constexpr qsizetype MostAdventureWords = 100000;
AdventureExtras withWord(AdventureExtras extras, const QString &word);
