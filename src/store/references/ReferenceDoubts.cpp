#include "store/references/ReferenceDoubts.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace
{
struct Reason {
    Doubt doubt;
    const char *text; // %1: the phrase's words; %2: the number that is read
};

constexpr std::array Reasons{
    Reason{Doubt::BlanksBefore,
           QT_TRANSLATE_NOOP("ReferenceDoubts", "Il y a une espace de trop avant le numéro : "
                                                "une renumérotation l'écrirait de travers.")},
    Reason{Doubt::LeadingZero,
           QT_TRANSLATE_NOOP(
               "ReferenceDoubts",
               "Il y a un zéro devant le numéro : une renumérotation l'écrirait de travers.")},
    Reason{Doubt::DigitsBehind,
           QT_TRANSLATE_NOOP("ReferenceDoubts",
                             "D'autres chiffres suivent le numéro : le renvoi est lu « %2 », "
                             "et une renumérotation l'écrirait de travers.")},
    Reason{Doubt::DigitsJoined,
           QT_TRANSLATE_NOOP("ReferenceDoubts",
                             "Ce renvoi n'est pas reconnu : d'autres chiffres suivent le numéro.")},
    Reason{
        Doubt::TooManyBlanks,
        QT_TRANSLATE_NOOP("ReferenceDoubts",
                          "Ce renvoi n'est pas reconnu : il y a trop d'espaces avant le numéro.")},
    Reason{Doubt::NoBlank,
           QT_TRANSLATE_NOOP(
               "ReferenceDoubts",
               "Ce renvoi n'est pas reconnu : il faut une espace avant et après « %1 ».")},
    Reason{Doubt::NoBreakSpace,
           QT_TRANSLATE_NOOP(
               "ReferenceDoubts",
               "Ce renvoi n'est pas reconnu : l'espace avant ou après « %1 » est insécable.")},
    Reason{Doubt::LineBreak,
           QT_TRANSLATE_NOOP(
               "ReferenceDoubts",
               "Ce renvoi n'est pas reconnu : une fin de ligne sépare « %1 » du numéro.")},
    Reason{
        Doubt::WordBetween,
        QT_TRANSLATE_NOOP("ReferenceDoubts",
                          "Ce renvoi n'est pas reconnu : quelque chose sépare « %1 » du numéro.")},
    Reason{Doubt::PhraseMissing,
           QT_TRANSLATE_NOOP("ReferenceDoubts",
                             "Ce renvoi n'est pas reconnu : il manque « %1 » devant le numéro.")},
    Reason{
        Doubt::NumbersAlone,
        QT_TRANSLATE_NOOP("ReferenceDoubts",
                          "Des numéros seuls sur leur ligne ne sont pas reconnus comme renvois.")},
    Reason{Doubt::OtherWords,
           QT_TRANSLATE_NOOP("ReferenceDoubts", "Ce renvoi n'est pas reconnu : d'autres mots "
                                                "tiennent lieu de « %1 » devant le numéro.")},
    Reason{Doubt::BeyondLast,
           QT_TRANSLATE_NOOP("ReferenceDoubts", "Il n'y a pas de paragraphe au-delà du 2000.")},
    Reason{Doubt::Telephone,
           QT_TRANSLATE_NOOP("ReferenceDoubts",
                             "Sans doute un numéro de téléphone, mais lu comme le renvoi « %2 ».")},
    Reason{Doubt::Date, QT_TRANSLATE_NOOP("ReferenceDoubts",
                                          "Sans doute une date, mais lue comme le renvoi « %2 ».")},
    Reason{Doubt::Ordinal,
           QT_TRANSLATE_NOOP("ReferenceDoubts",
                             "Sans doute un rang, mais lu comme le renvoi « %2 ».")},
    Reason{Doubt::Measure,
           QT_TRANSLATE_NOOP("ReferenceDoubts",
                             "Sans doute une quantité, mais lue comme le renvoi « %2 ».")},
    Reason{Doubt::OtherBook,
           QT_TRANSLATE_NOOP(
               "ReferenceDoubts",
               "Sans doute le paragraphe d'un autre livre, mais lu comme le renvoi « %2 ».")},
};
} // namespace

QString doubtReason(Doubt doubt, int read, const QString &phrase)
{
    const auto *reason = std::find_if(Reasons.begin(), Reasons.end(),
                                      [doubt](const Reason &r) { return r.doubt == doubt; });
    if (reason == Reasons.end())
        return {};
    return withNoBreakSpaces(QCoreApplication::translate("ReferenceDoubts", reason->text))
        .replace(QStringLiteral("%1"), phrase.trimmed())
        .replace(QStringLiteral("%2"), QString::number(read));
}

QString withNoBreakSpaces(QString sentence)
{
    return sentence.replace(QStringLiteral("« "), QStringLiteral("«\u00a0"))
        .replace(QStringLiteral(" »"), QStringLiteral("\u00a0»"))
        .replace(QStringLiteral(" :"), QStringLiteral("\u00a0:"))
        .replace(QStringLiteral(" ?"), QStringLiteral("\u00a0?"));
}
