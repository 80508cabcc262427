#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

// The author's own words, which are right in all his adventures. They have a file of their own in
// UTF-8, sorted, a word a line, ended by CR LF; he may change it with any editor. Programs that run
// at once share it: it is read again before it is written, and when its date or size has changed.
class OwnWords
{
public:
    // Reads nothing yet.
    explicit OwnWords(const QString &path) : m_path(path) {}

    const QStringList &words() const { return m_words; }

    // Reads the file when it is another one than was read last; true: there are other words now. A
    // file that cannot be read leaves the words as they are, one that is gone takes them away.
    bool refresh();

    // Throws FileError, also where the words that are there cannot be read, and LimitError above
    // MostWords.
    void add(const QString &word);

    static constexpr int MostWords = 100000;
    static constexpr qsizetype LongestWord = 100; // a longer line of the file is none

private:
    void read();

    QString m_path;
    QStringList m_words;
    QDateTime m_changed; // of the file as it was read
    qint64 m_size = -1;
};
