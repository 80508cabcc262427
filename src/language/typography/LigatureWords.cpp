#include "language/typography/LigatureWords.h"

#include <QStringView>
#include <algorithm>
#include <array>

namespace
{
// In small letters and without accents on the letters before the ligature.
constexpr std::array<QStringView, 24> Whole{
    u"coeur",    u"coeurs",    u"choeur",   u"choeurs",   u"soeur",       u"soeurs",
    u"consoeur", u"consoeurs", u"rancoeur", u"rancoeurs", u"contrecoeur", u"soeurette",
    u"oeuf",     u"oeufs",     u"boeuf",    u"boeufs",    u"noeud",       u"noeuds",
    u"voeu",     u"voeux",     u"moeurs",   u"caetera",   u"naevus",      u"taenia"};

// All words that begin so have it.
constexpr std::array<QStringView, 19> Beginnings{
    u"oeuvr",   u"manoeuvr", u"desoeuvr", u"ecoeur",   u"oeil",     u"oesophag", u"oecumen",
    u"oedem",   u"oedip",    u"oenolog",  u"oestr",    u"foetus",   u"foetal",   u"foetaux",
    u"coeliaq", u"coelacan", u"soeurett", u"praesidi", u"coeurdeli"};

// Only behind these.
constexpr std::array<std::array<QStringView, 2>, 2> Pairs{
    {{u"ex", u"aequo"}, {u"curriculum", u"vitae"}}};

QString plain(const QString &word)
{
    return word.toLower().replace(u'é', u'e').replace(u'è', u'e');
}

bool isListed(const QString &word, const QString &before)
{
    const auto begins = [&word](QStringView start) { return word.startsWith(start); };
    return std::find(Whole.begin(), Whole.end(), word) != Whole.end() ||
           std::any_of(Beginnings.begin(), Beginnings.end(), begins) ||
           std::any_of(Pairs.begin(), Pairs.end(),
                       [&](const auto &pair) { return pair[0] == before && pair[1] == word; });
}
} // namespace

QString withLigature(const QString &word, const QString &before)
{
    const QString small = plain(word);
    const qsizetype oe = small.indexOf(u"oe");
    const qsizetype at = oe >= 0 ? oe : small.indexOf(u"ae");
    if (at < 0 || word.at(at + 1).toLower() != u'e' || !isListed(small, plain(before)))
        return {};
    const bool capital = word.at(at).isUpper();
    const QChar ligature = oe >= 0 ? (capital ? u'Œ' : u'œ') : (capital ? u'Æ' : u'æ');
    return word.left(at) + ligature + word.mid(at + 2);
}
