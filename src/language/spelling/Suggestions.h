#pragma once

#include "language/spelling/DictionaryFiles.h"

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QThreadPool>
#include <memory>
#include <optional>

class Dictionary;

// What may be meant by a doubtful word: at most Most words, in the letters of the dictionary but
// with the apostrophe of the word, those with a ligature in the place of "oe" and "ae" first. Words
// above Longest letters get none, for it would take long and bring nothing.
constexpr qsizetype MostSuggestions = 7;
constexpr qsizetype LongestSuggested = 30;
QStringList suggestionsFor(const Dictionary &dictionary, const QString &word);

// A word that comes in the place of another, with that one's kind of apostrophe.
QString withApostropheOf(const QString &replaced, QString by);

// The same beside the author's work, since a word may take most of a second: another thread looks
// them up, with a dictionary of its own.
class Suggestions : public QObject
{
    Q_OBJECT

public:
    Suggestions();
    // Waits for the word that is being looked up.
    ~Suggestions() override;

    // Forgets what was found with another dictionary; nothing: there is none.
    void setDictionary(const std::optional<DictionaryFiles> &files);

    // What is known of a word by now. If it is nothing, it is looked up, and found() will tell.
    std::optional<QStringList> ask(const QString &word);

    // The same, waiting for it at most so long.
    std::optional<QStringList> askFor(const QString &word, int milliseconds);

Q_SIGNALS:
    void found(const QString &word, const QStringList &suggestions);

private:
    struct Worker;
    void take(const DictionaryFiles &files, const QString &word, const QStringList &suggestions);

    std::optional<DictionaryFiles> m_files;
    std::shared_ptr<Worker> m_worker;
    QHash<QString, std::optional<QStringList>> m_known; // nothing yet: asked for
    QThreadPool m_thread;
};
