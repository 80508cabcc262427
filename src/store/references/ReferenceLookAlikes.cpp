#include "store/references/ReferenceLookAlikes.h"

#include "platform/Ascii.h"

#include <QRegularExpression>
#include <algorithm>
#include <vector>

namespace
{
constexpr auto Options =
    QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption;

struct Follower {
    Doubt doubt;
    bool french;
    QRegularExpression behind; // from the number's end on
};

QRegularExpression words(const char *alternatives)
{
    return QRegularExpression(
        QStringLiteral("^(?:%1)(?![\\pL\\d])").arg(QString::fromUtf8(alternatives)), Options);
}

QRegularExpression pattern(const char *text)
{
    return QRegularExpression(QString::fromUtf8(text), Options);
}

const std::vector<Follower> &followers()
{
    static const std::vector<Follower> table{
        {Doubt::Measure, false, pattern("^\\s?(?:[%‰°€$]|/\\s?\\d)|^e[+-]?\\d")},
        {Doubt::Date, true,
         words("(?:er)?\\s+(?:janvier|février|fevrier|mars|avril|mai|juin|juillet|août|aout|"
               "septembre|octobre|novembre|décembre|decembre)")},
        {Doubt::Ordinal, true, words("er|ère|e|è|ème|eme|ième|nd|nde|ᵉ|\\s(?:er|ème|ième)")},
        {Doubt::Measure, true,
         words("\\s+(?:pour\\s+cent|degrés?|étages?|points?|coups?|mètres?|kilomètres?|km|"
               "centimètres?|cm|lieues?|pieds|heures?|h|minutes?|secondes?|jours?|ans|années?|"
               "semaines?|siècles?|fois|euros?|francs?|pièces|kilos?|grammes?|litres?|"
               "rue|avenue|boulevard|quai|bis)|h\\d*")},
        {Doubt::OtherBook, true,
         words("\\s+(?:du|de\\s+la|de\\s+votre|de\\s+notre|dans\\s+(?:le|la|votre))"
               "\\s+(?:\\pL+\\s+){0,2}(?:volume|tome|aventure|épisode|livret)")},
    };
    return table;
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

bool isOddSpace(QChar c)
{
    return c.isSpace() && !isBlank(c) && c != u'\n';
}

bool isWordCharacter(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

// The phrase's words stand before the number, but not as the phrase has them, or digits behind the
// number are read with it and make it too large.
std::optional<Unread> misspelt(QStringView before, QStringView behind, const QString &phrase)
{
    const QString core = phrase.trimmed();
    qsizetype end = before.size();
    while (end > 0 && before.at(end - 1).isSpace())
        --end;
    const qsizetype start = end - core.size();
    if (start < 0 || before.mid(start, core.size()).compare(core, Qt::CaseInsensitive) != 0)
        return std::nullopt;
    const QChar leading = start > 0 ? before.at(start - 1) : QChar(u'\n');
    if (isWordCharacter(leading) && isWordCharacter(core.front()))
        return std::nullopt;
    const qsizetype blanks = phrase.size() - phrase.indexOf(core) - core.size();
    const bool isPhrase =
        before.first(std::min(end + blanks, before.size())).endsWith(phrase, Qt::CaseInsensitive);
    const QStringView gap = before.mid(isPhrase ? end + blanks : end);
    Doubt doubt = Doubt::NoBlank;
    if (gap.contains(u'\n'))
        doubt = Doubt::LineBreak;
    else if ((!isPhrase && isOddSpace(leading)) || std::any_of(gap.begin(), gap.end(), isOddSpace))
        doubt = Doubt::NoBreakSpace;
    else if (isPhrase && !gap.isEmpty())
        doubt = Doubt::TooManyBlanks;
    else if (isPhrase && joinedDigits(behind)) // or its first blank is that of another phrase
        doubt = Doubt::DigitsJoined;
    return Unread{doubt, before.size() - start};
}
} // namespace

bool isFrenchPhrase(QStringView phrase)
{
    const QStringView core = phrase.trimmed();
    return core.startsWith(u"au", Qt::CaseInsensitive) &&
           (core.size() == 2 || core.at(2).isSpace());
}

std::optional<qsizetype> joinedDigits(QStringView behind)
{
    const auto next = std::find_if_not(behind.begin(), behind.end(),
                                       [](QChar c) { return isBlank(c) || c == u'.'; });
    if (next == behind.end() || !isAsciiDigit(*next))
        return std::nullopt;
    return next - behind.begin();
}

Doubt doubtByWhatFollows(QStringView behind, qsizetype digits, bool french)
{
    static const QRegularExpression pairs = pattern("^(?:[\\s.\\-]\\d\\d){3,}(?!\\d)");
    static const QRegularExpression groups = pattern("^(?:[\\s.\\-]\\d{2,3}){2,}(?!\\d)");
    // Most references end at a comma or the like, behind which there is nothing to look at, or at
    // a stop, behind which more digits may be.
    if (behind.isEmpty() || QStringView(u",;:!?)").contains(behind.front()))
        return Doubt::None;
    if (behind.front() == u'.' && (behind.size() == 1 || !isAsciiDigit(behind.at(1))))
        return Doubt::None;
    const QString text = behind.left(LookAlikeContext).toString();
    if ((digits <= 2 && pairs.match(text).hasMatch()) ||
        (digits >= 3 && groups.match(text).hasMatch()))
        return Doubt::Telephone;
    for (const Follower &follower : followers())
        if ((french || !follower.french) && follower.behind.match(text).hasMatch())
            return follower.doubt;
    return Doubt::None;
}

std::optional<Unread> unreadByContext(const QString &before, QStringView behind,
                                      const QString &phrase)
{
    if (QStringView(phrase).trimmed().isEmpty())
        return std::nullopt;
    if (const std::optional<Unread> found = misspelt(before, behind, phrase)) {
        // "au 900 000" is no paragraph at all.
        static const QRegularExpression thousands = pattern("^\\s\\d{3}(?!\\d)");
        if (found->doubt == Doubt::DigitsJoined &&
            thousands.match(behind.left(LookAlikeContext).toString()).hasMatch())
            return std::nullopt;
        return found;
    }
    if (!isFrenchPhrase(phrase))
        return std::nullopt;
    static const ReferenceLeaders leaders(QStringLiteral("au"), ReferenceLeaders::Reach::Usual);
    return leaders.find(before, behind.left(LookAlikeContext).toString());
}
