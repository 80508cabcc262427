#pragma once

#include "language/spelling/SpellingWords.h"
#include "platform/Progress.h"
#include "store/ParagraphArray.h"

#include <QList>
#include <QString>

class Spelling;
struct Variables;

// The doubtful words of a whole book, each once. Positions are those of RichTextBox.

struct WordPlace {
    int number;
    qsizetype position;
    qsizetype length;
    bool operator==(const WordPlace &) const = default;
};

struct DoubtfulWord {
    QString word;            // in the form of SpellingWord
    QList<WordPlace> places; // ascending
};

class BookSpelling
{
public:
    // Both must outlive it; the dictionary must be there.
    BookSpelling(const Variables &variables, const Spelling &spelling);

    // Reads the stored text of paragraph n, which may have been written, changed or cleared.
    void read(int n);
    // Reads all of them, and leaves what was found as it was when progress throws.
    void readAll(const Progress &progress);
    // Words were added: fewer of those that were doubtful are so.
    void judgeAgain();

    // By their letters, as a dictionary sorts them.
    QList<DoubtfulWord> words() const;

    // Ascending; what cannot be read has no doubtful words.
    const QList<int> &unreadable() const { return m_unreadable; }

private:
    const Variables &m_variables;
    const Spelling &m_spelling;
    ParagraphArray<QList<SpellingWord>, 2001> m_doubts;
    QList<int> m_unreadable;
};

// "12, 26, 185...": the first paragraphs that a word stands in, each once.
QString firstNumbers(const DoubtfulWord &word, int most = 8);
