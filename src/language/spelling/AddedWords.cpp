#include "language/spelling/AddedWords.h"

#include "language/spelling/SpellingWords.h"

AddedWords::AddedWords(const QStringList &words)
{
    m_words.reserve(words.size());
    m_capitals.reserve(words.size());
    for (const QString &word : words) {
        const QString form = spellingForm(word);
        m_words.insert(form);
        m_capitals.insert(form.toUpper());
    }
}

bool AddedWords::has(const QString &word) const
{
    if (m_words.isEmpty() || word.isEmpty())
        return false;
    if (m_words.contains(word))
        return true;
    if (!word.front().isUpper())
        return false;
    if (word == word.toUpper())
        return m_capitals.contains(word);
    return m_words.contains(word.front().toLower() + word.sliced(1));
}
