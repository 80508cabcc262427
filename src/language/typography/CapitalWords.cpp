#include "language/typography/CapitalWords.h"

#include <QStringList>
#include <algorithm>
#include <array>

namespace
{
// A capital and what it may be with an accent.
struct Capital {
    QChar plain;
    QStringView accented;
};
constexpr std::array<Capital, 6> Capitals{
    {{u'A', u"ÀÂ"}, {u'C', u"Ç"}, {u'E', u"ÉÈÊ"}, {u'I', u"ÎÏ"}, {u'O', u"Ô"}, {u'U', u"ÙÛ"}}};

const Capital *entryOf(QChar capital)
{
    const auto *const entry =
        std::find_if(Capitals.begin(), Capitals.end(),
                     [capital](const auto &one) { return one.plain == capital; });
    return entry == Capitals.end() ? nullptr : entry;
}

// Without a dictionary: no word without the accent, and no name.
const QStringList &knownWords()
{
    static const QStringList words =
        QStringLiteral("ça état états était étaient étiez étant êtes être école église épée épées "
                       "étrange étrangement évidemment évidence écoutez écoute écartez éteignez "
                       "évitez éloignez éclairez énorme épuisé épuisée étonné étonnée âme âge")
            .split(u' ');
    return words;
}

const QStringList &wordsBehindPreposition()
{
    static const QStringList words =
        QStringLiteral(
            "la peine présent partir moins force travers droite gauche côté cause chaque ce cet "
            "cette ces mon ton son ma ta sa mes tes ses notre votre leur nos vos leurs un une deux "
            "trois quatre cinq six sept huit neuf dix cent mille vous toi moi lui nous eux elle "
            "elles quoi qui quel quelle quels quelles bientôt jamais demain nouveau propos "
            "proximité mesure midi minuit table terre pied cheval genoux tout toute tous toutes "
            "part aucun aucune peu première dessein tâtons court bout voix condition défaut savoir "
            "supposer vrai plus quelques plusieurs certains certaines grand grands grande "
            "entendre voir en croire coup coups reculons jeun mi main mains "
            "pas petits petite haute basse bas heure bord plat dos perte bonne pleine pleins fond "
            "intervalles même suivre contrecœur rebours quand mort tire tue compter onze douze "
            "treize quinze seize vingt trente")
            .split(u' ');
    return words;
}
} // namespace

bool mayLackAccent(QChar capital)
{
    return entryOf(capital) != nullptr;
}

QChar accentedCapital(const QString &word, const std::function<bool(const QString &)> &isWord)
{
    const QString rest = word.mid(1);
    const Capital *capital = entryOf(word.front());
    if (capital == nullptr || rest != rest.toLower())
        return {};
    const auto knows = [&](const QString &small) {
        return isWord ? isWord(small) : knownWords().contains(small);
    };
    if (knows(word.toLower()) || knows(word)) // the latter is a name
        return {};
    QChar found;
    for (const QChar accented : capital->accented) {
        if (!knows(accented.toLower() + rest))
            continue;
        if (!found.isNull())
            return {};
        found = accented;
    }
    return found;
}

bool followsPreposition(const QString &word, bool elided)
{
    static const QStringList elisions{QStringLiteral("l"), QStringLiteral("d"),
                                      QStringLiteral("quelqu"), QStringLiteral("aujourd")};
    return elided ? elisions.contains(word) : wordsBehindPreposition().contains(word);
}
