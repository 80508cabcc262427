#include "language/spelling/BookSpelling.h"

#include "language/spelling/Spelling.h"
#include "store/DamagedTexts.h"
#include "store/Variables.h"

#include <QCollator>
#include <QHash>
#include <algorithm>
#include <vector>

namespace
{
// Comparing words letter by letter takes long, so that each is prepared for it once.
void sortByLetters(QList<DoubtfulWord> &words)
{
    QCollator collator{QLocale(QLocale::French)};
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, qsizetype>> keys;
    keys.reserve(static_cast<std::size_t>(words.size()));
    for (qsizetype i = 0; i < words.size(); ++i)
        keys.emplace_back(collator.sortKey(words.at(i).word), i);
    std::stable_sort(keys.begin(), keys.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QList<DoubtfulWord> sorted;
    sorted.reserve(words.size());
    for (const auto &[key, row] : keys)
        sorted.append(words.at(row));
    words = sorted;
}
} // namespace

BookSpelling::BookSpelling(const Variables &variables, const Spelling &spelling)
    : m_variables(variables), m_spelling(spelling)
{
}

void BookSpelling::read(int n)
{
    m_unreadable.removeAll(n);
    m_doubts.at(n).clear();
    if (m_variables.Written.at(n) == 0)
        return;
    const QString text = readablePlainText(m_variables, n, m_unreadable).value_or(QString());
    std::sort(m_unreadable.begin(), m_unreadable.end());
    m_doubts.at(n) = m_spelling.doubtsIn(n, text);
}

void BookSpelling::readAll(const Progress &progress)
{
    BookSpelling read(m_variables, m_spelling);
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        progress(n, Variables::LastParagraph);
        read.read(n);
    }
    m_doubts = read.m_doubts;
    m_unreadable = read.m_unreadable;
}

void BookSpelling::judgeAgain()
{
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        if (!m_doubts.at(n).isEmpty())
            m_doubts.at(n) = m_spelling.doubts(n, m_doubts.at(n));
}

QList<DoubtfulWord> BookSpelling::words() const
{
    QHash<QString, qsizetype> rows;
    QList<DoubtfulWord> words;
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        for (const SpellingWord &doubt : m_doubts.at(n)) {
            const auto row = rows.constFind(doubt.text);
            const qsizetype at = row == rows.cend() ? words.size() : *row;
            if (row == rows.cend()) {
                rows.insert(doubt.text, at);
                words.append({doubt.text, {}});
            }
            words[at].places.append({n, doubt.position, doubt.length});
        }
    sortByLetters(words);
    return words;
}

QString firstNumbers(const DoubtfulWord &word, int most)
{
    QStringList numbers;
    int last = -1;
    for (const WordPlace &place : word.places) {
        if (place.number == last)
            continue;
        if (numbers.size() == most)
            return numbers.join(QStringLiteral(", ")) + QStringLiteral("...");
        last = place.number;
        numbers.append(QString::number(last));
    }
    return numbers.join(QStringLiteral(", "));
}
