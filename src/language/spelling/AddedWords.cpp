#include "language/spelling/AddedWords.h"

#include "language/spelling/SpellingWords.h"

#include <utility>

// An adventure may have very many, which its opening need not wait for.
void AddedWords::arrange() const
{
    m_words.reserve(m_list.size());
    m_capitals.reserve(m_list.size());
    for (const QString &word : std::as_const(m_list)) {
        const QString form = spellingForm(word);
        m_words.insert(form);
        m_capitals.insert(form.toUpper());
    }
    m_list.clear();
}

bool AddedWords::has(const QString &word) const
{
    if (!m_list.isEmpty())
        arrange();
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
