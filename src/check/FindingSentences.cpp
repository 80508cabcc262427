#include "check/Finding.h"

#include "platform/Ascii.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace
{
constexpr std::array<const char *, FindingKindCount> Sentences{
    QT_TRANSLATE_NOOP("Finding", "Un renvoi mène au %1, qui n'est pas écrit."),
    QT_TRANSLATE_NOOP("Finding", "Il n'y a pas de paragraphe %1 : le dernier est le 2000."),
    QT_TRANSLATE_NOOP("Finding", "Aucune lecture n'y arrive : aucun paragraphe n'y mène."),
    QT_TRANSLATE_NOOP("Finding", "Piège : de ces paragraphes (%1) on n'arrive plus à aucune fin. "
                                 "On y tourne : %2."),
    QT_TRANSLATE_NOOP("Finding", "Aucune lecture n'arrive à une fin."),
    QT_TRANSLATE_NOOP("Finding", "Le seul choix est de rester au même paragraphe."),
    QT_TRANSLATE_NOOP("Finding", "Rien ne mène plus loin : est-ce une fin ?"),
    QT_TRANSLATE_NOOP("Finding", "Plusieurs renvois mènent au %1."),
    QT_TRANSLATE_NOOP("Finding", "L'un des choix est de rester au même paragraphe."),
    "",
    "",
    QT_TRANSLATE_NOOP("Finding", "Le HTML n'aura pas de lien ici : il veut « %1 » à la lettre, "
                                 "sans accent ni autre signe particulier."),
    "",
    QT_TRANSLATE_NOOP("Finding", "Il reste quelque chose à faire."),
    QT_TRANSLATE_NOOP("Finding", "Le paragraphe a moins de cinq mots."),
};

// Of words with one number.
QString digitsOf(QString words)
{
    return words.removeIf([](QChar c) { return !isAsciiDigit(c); });
}

constexpr std::array<const char *, FindingKindCount> Titles{
    QT_TRANSLATE_NOOP("Finding", "Renvois à un paragraphe vide"),
    QT_TRANSLATE_NOOP("Finding", "Renvois au-delà du 2000"),
    QT_TRANSLATE_NOOP("Finding", "Paragraphes où aucune lecture n'arrive"),
    QT_TRANSLATE_NOOP("Finding", "Pièges d'où aucune fin n'est possible"),
    QT_TRANSLATE_NOOP("Finding", "Livre sans fin"),
    QT_TRANSLATE_NOOP("Finding", "Paragraphes qui ne mènent qu'à eux-mêmes"),
    QT_TRANSLATE_NOOP("Finding", "Fins"),
    QT_TRANSLATE_NOOP("Finding", "Renvois répétés dans un paragraphe"),
    QT_TRANSLATE_NOOP("Finding", "Renvois au paragraphe lui-même"),
    QT_TRANSLATE_NOOP("Finding", "Renvois douteux"),
    QT_TRANSLATE_NOOP("Finding", "Renvois qui ne sont pas suivis"),
    QT_TRANSLATE_NOOP("Finding", "Renvois sans lien dans le HTML"),
    QT_TRANSLATE_NOOP("Finding", "Grammaire"),
    QT_TRANSLATE_NOOP("Finding", "Reste à faire"),
    QT_TRANSLATE_NOOP("Finding", "Paragraphes très courts"),
};

QString translated(const char *sentence)
{
    return QCoreApplication::translate("Finding", sentence);
}

QString listed(const QList<int> &numbers, const QString &separator)
{
    constexpr qsizetype most = 12; // a sentence is no list
    QStringList texts;
    for (const int n : numbers.first(std::min(most, numbers.size())))
        texts.append(QString::number(n));
    if (numbers.size() > most)
        texts.append(QStringLiteral("…"));
    return texts.join(separator);
}

QString unreachableSentence(const Finding &finding)
{
    if (finding.target == 0)
        return translated(Sentences.at(static_cast<std::size_t>(FindingKind::Unreachable)));
    const QList<int> &ring = finding.members;
    if (ring.contains(finding.number))
        return translated(QT_TRANSLATE_NOOP(
                              "Finding",
                              "Aucune lecture n'y arrive : les paragraphes qui y mènent tournent "
                              "en rond (%1)."))
            .arg(listed(ring, QStringLiteral(", ")));
    if (!ring.isEmpty())
        return translated(QT_TRANSLATE_NOOP(
                              "Finding", "Aucune lecture n'y arrive : il ne dépend que d'un cercle "
                                         "de paragraphes, au %1, où rien ne mène."))
            .arg(finding.target);
    return translated(QT_TRANSLATE_NOOP("Finding", "Aucune lecture n'y arrive : il ne dépend que "
                                                   "du %1, où aucun paragraphe ne mène."))
        .arg(finding.target);
}

QString plainSentence(const Finding &finding)
{
    const QString sentence = translated(Sentences.at(static_cast<std::size_t>(finding.kind)));
    switch (finding.kind) {
    case FindingKind::Doubtful:
    case FindingKind::NotRead:
        return doubtReason(finding.mark.doubt, finding.mark.read, finding.phrase);
    case FindingKind::Grammar:
        return finding.message;
    case FindingKind::Unreachable:
        return unreachableSentence(finding);
    case FindingKind::Trap:
        return sentence.arg(listed(finding.members, QStringLiteral(", ")),
                            listed(finding.loop + finding.loop.first(1), QStringLiteral(" → ")));
    case FindingKind::NotLinked:
        return sentence.arg(finding.phrase.trimmed());
    case FindingKind::BeyondLast:
        return sentence.arg(digitsOf(finding.text));
    case FindingKind::EmptyTarget:
    case FindingKind::SameTarget:
        return sentence.arg(finding.target);
    default:
        return sentence;
    }
}
} // namespace

QString Finding::sentence() const
{
    return withNoBreakSpaces(plainSentence(*this));
}

QString kindTitle(FindingKind kind)
{
    return translated(Titles.at(static_cast<std::size_t>(kind)));
}
