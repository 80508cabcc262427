#include "language/spelling/Speller.h"

#include "language/spelling/Dictionary.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <array>

namespace
{
constexpr qsizetype MostVerdicts = 100000;
constexpr qsizetype LongestWord = 60; // no longer one is known to any dictionary
constexpr qsizetype MostHyphens = 6;  // the library tries all ways to part a word there
constexpr int MostAccents = 3;        // that capitals may lack
constexpr int MostTries = 400;

// Behind these a vowel follows, or an h.
constexpr std::array<QStringView, 7> StrictElisions{u"l",      u"qu",     u"jusqu", u"lorsqu",
                                                    u"puisqu", u"quoiqu", u"presqu"};
// In dialogue these stand before any letter: "j'suis", "p'tit".
constexpr std::array<QStringView, 9> Elisions{u"d", u"j", u"m", u"n",     u"s",
                                              u"t", u"c", u"ç", u"quelqu"};

QChar withoutAccent(QChar c)
{
    const QString parts = c.decomposition();
    return parts.isEmpty() ? c : parts.front();
}

bool isVowelOrH(QChar c)
{
    const QChar bare = withoutAccent(c.toLower());
    return QStringView(u"aeiouyhœæ").contains(bare);
}

// The length of "d'" at the beginning of "d'Elric", or 0.
qsizetype elisionLength(const QString &word)
{
    const qsizetype apostrophe = word.indexOf(u'\'');
    if (apostrophe < 1 || apostrophe + 1 >= word.size())
        return 0;
    const QStringView before = QStringView(word).first(apostrophe);
    const auto isBefore = [before](QStringView elision) {
        return before.compare(elision, Qt::CaseInsensitive) == 0;
    };
    const bool elided = std::any_of(StrictElisions.begin(), StrictElisions.end(), isBefore) ||
                        std::any_of(Elisions.begin(), Elisions.end(), isBefore);
    return elided ? apostrophe + 1 : 0;
}

bool isWronglyElided(const QString &word)
{
    const qsizetype length = elisionLength(word);
    const QStringView before = QStringView(word).first(std::max<qsizetype>(length - 1, 0));
    const bool strict =
        std::any_of(StrictElisions.begin(), StrictElisions.end(), [before](QStringView e) {
            return before.compare(e, Qt::CaseInsensitive) == 0;
        });
    return strict && word.at(length).isLetter() && !isVowelOrH(word.at(length));
}

// What inversions and elisions are mistaken for, though each of their parts is a word: "va-t'il",
// "dit-t-il", "jusqu'a".
bool isMisjoined(const QString &word)
{
    static const QRegularExpression mistaken(
        QStringLiteral("-t'(?:ils?|elles?|on)$|[td]-t-(?:ils?|elles?|on)$|^jusqu'a$"),
        QRegularExpression::CaseInsensitiveOption);
    return (word.contains(u'\'') || word.contains(u'-')) && mistaken.match(word).hasMatch();
}

// Right, and in no dictionary.
bool isShortened(const QString &word)
{
    static const QStringList words =
        QStringLiteral(
            "v'là v'lan m'sieur m'dame m'man p'pa grand'rue grand'place grand'chose grand'messe")
            .split(u' ');
    return word.contains(u'\'') && words.contains(word, Qt::CaseInsensitive);
}

// The accents that a capital may stand without.
QStringView accentedOf(QChar capital)
{
    switch (capital.unicode()) {
    case u'A':
        return u"ÀÂ";
    case u'C':
        return u"Ç";
    case u'E':
        return u"ÉÈÊË";
    case u'I':
        return u"ÎÏ";
    case u'O':
        return u"Ô";
    case u'U':
        return u"ÛÙÜ";
    default:
        return {};
    }
}

// Tries accents on the capitals from a place on, few before many.
template <typename IsWord>
bool findsAccents(QString &word, qsizetype from, qsizetype end, int accents, int &tries,
                  const IsWord &isWord)
{
    for (qsizetype at = from; at < end; ++at) {
        const QChar bare = word.at(at);
        for (const QChar accented : accentedOf(bare)) {
            if (--tries < 0)
                return false;
            word[at] = accented;
            const bool found = accents == 1
                                   ? isWord(word)
                                   : findsAccents(word, at + 1, end, accents - 1, tries, isWord);
            word[at] = bare;
            if (found)
                return true;
        }
    }
    return false;
}
} // namespace

void Speller::setDictionary(std::shared_ptr<const Dictionary> dictionary)
{
    m_dictionary = std::move(dictionary);
    forget();
}

void Speller::setOptions(const Options &options)
{
    m_options = options;
    forget();
}

void Speller::setOwnWords(const QStringList &words)
{
    m_ownWords = AddedWords(words);
    forget();
}

void Speller::setAdventureWords(const QStringList &words)
{
    m_adventureWords = AddedWords(words);
    forget();
}

QList<SpellingWord> Speller::doubts(const SpellingWord &word) const
{
    QList<SpellingWord> doubts;
    if (!m_dictionary)
        return doubts;
    // Where accents or soft hyphens were taken out, parts have no places of their own.
    const bool asItStands = word.text.size() == word.length;
    for (const Part &part : verdict(word.text)) {
        if (!asItStands)
            return {word};
        doubts.append({word.position + part.position, part.length,
                       word.text.mid(part.position, part.length)});
    }
    return doubts;
}

bool Speller::knows(QStringView word) const
{
    return !m_dictionary || verdict(spellingForm(word)).isEmpty();
}

bool Speller::isWord(QStringView word) const
{
    const QString form = spellingForm(word);
    return m_dictionary && form.size() <= LongestWord && hasLiterally(form);
}

const Speller::Parts &Speller::verdict(const QString &word) const
{
    const auto known = m_verdicts.constFind(word);
    if (known != m_verdicts.cend())
        return *known;
    if (m_verdicts.size() >= MostVerdicts)
        forget();
    return *m_verdicts.insert(word, judge(word));
}

Speller::Parts Speller::judge(const QString &word) const
{
    if (isRight(word))
        return {};
    if (isMisjoined(word))
        return {{0, word.size()}};
    const qsizetype elision = elisionLength(word);
    if (elision > 0 && (isVowelOrH(word.at(elision)) || isSkipped(word.sliced(elision))))
        return judgeRest(word, elision);
    return word.contains(u'-') ? judgeJoined(word) : Parts{{0, word.size()}};
}

Speller::Parts Speller::judgeRest(const QString &word, qsizetype from) const
{
    Parts parts = judge(word.sliced(from));
    for (Part &part : parts)
        part.position += from;
    return parts;
}

Speller::Parts Speller::judgeJoined(const QString &word) const
{
    Parts parts;
    for (qsizetype begin = 0; begin <= word.size();) {
        qsizetype end = word.indexOf(u'-', begin);
        end = end < 0 ? word.size() : end;
        Parts inPart = end > begin ? judge(word.mid(begin, end - begin)) : Parts();
        for (const Part &part : inPart)
            parts.append({begin + part.position, part.length});
        begin = end + 1;
    }
    return parts;
}

bool Speller::isRight(const QString &word) const
{
    if (isSkipped(word))
        return true;
    return word.size() <= LongestWord && word.count(u'-') <= MostHyphens &&
           (hasLiterally(word) || isRightWithAccents(word) || isShortened(word)) &&
           !isWronglyElided(word) && !isMisjoined(word);
}

bool Speller::isSkipped(const QString &word) const
{
    if (m_options.skipsDigits &&
        std::any_of(word.begin(), word.end(), [](QChar c) { return c.isNumber(); }))
        return true;
    // A letter by itself is an initial.
    const bool capitals = word.front().isUpper() && word == word.toUpper();
    return capitals && (m_options.skipsCapitals || word.size() == 1);
}

bool Speller::hasLiterally(const QString &word) const
{
    return m_ownWords.has(word) || m_adventureWords.has(word) || m_dictionary->has(word);
}

// "Ecole" lacks one accent, at its beginning; in capitals any letter may lack its own.
bool Speller::isRightWithAccents(const QString &word) const
{
    if (!word.front().isUpper())
        return false;
    const bool capitals = word == word.toUpper();
    const auto isWord = [this](const QString &accented) { return hasLiterally(accented); };
    QString tried = word;
    int tries = MostTries;
    for (int accents = 1; accents <= (capitals ? MostAccents : 1); ++accents)
        if (findsAccents(tried, 0, capitals ? word.size() : 1, accents, tries, isWord))
            return true;
    return false;
}
