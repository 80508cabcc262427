#include "store/ReferenceDoubts.h"

#include <QCoreApplication>

namespace
{
// %1: the phrase's words; %2: the number that is read.
const char *reasonFor(Doubt doubt)
{
    switch (doubt) {
    case Doubt::None:
        return "";
    case Doubt::BlanksBefore:
        return QT_TRANSLATE_NOOP("ReferenceDoubts", "Il y a une espace de trop avant le numéro : "
                                                    "une renumérotation l'écrirait de travers.");
    case Doubt::LeadingZero:
        return QT_TRANSLATE_NOOP(
            "ReferenceMarks",
            "Il y a un zéro devant le numéro : une renumérotation l'écrirait de travers.");
    case Doubt::DigitsBehind:
        return QT_TRANSLATE_NOOP("ReferenceDoubts",
                                 "D'autres chiffres suivent le numéro : le renvoi est lu « %2 », "
                                 "et une renumérotation l'écrirait de travers.");
    case Doubt::DigitsJoined:
        return QT_TRANSLATE_NOOP(
            "ReferenceMarks", "Ce renvoi n'est pas reconnu : d'autres chiffres suivent le numéro.");
    case Doubt::TooManyBlanks:
        return QT_TRANSLATE_NOOP(
            "ReferenceMarks",
            "Ce renvoi n'est pas reconnu : il y a trop d'espaces avant le numéro.");
    case Doubt::NoBlank:
        return QT_TRANSLATE_NOOP(
            "ReferenceMarks",
            "Ce renvoi n'est pas reconnu : il faut une espace avant et après « %1 ».");
    case Doubt::NoBreakSpace:
        return QT_TRANSLATE_NOOP(
            "ReferenceMarks",
            "Ce renvoi n'est pas reconnu : l'espace avant ou après « %1 » est insécable.");
    case Doubt::LineBreak:
        return QT_TRANSLATE_NOOP(
            "ReferenceMarks",
            "Ce renvoi n'est pas reconnu : une fin de ligne sépare « %1 » du numéro.");
    case Doubt::WordBetween:
        return QT_TRANSLATE_NOOP(
            "ReferenceDoubts",
            "Ce renvoi n'est pas reconnu : quelque chose sépare « %1 » du numéro.");
    case Doubt::PhraseMissing:
        return QT_TRANSLATE_NOOP(
            "ReferenceMarks", "Ce renvoi n'est pas reconnu : il manque « %1 » devant le numéro.");
    case Doubt::NumbersAlone:
        return QT_TRANSLATE_NOOP(
            "ReferenceMarks",
            "Des numéros seuls sur leur ligne ne sont pas reconnus comme renvois.");
    case Doubt::Telephone:
        return QT_TRANSLATE_NOOP(
            "ReferenceMarks", "Sans doute un numéro de téléphone, mais lu comme le renvoi « %2 ».");
    case Doubt::Date:
        return QT_TRANSLATE_NOOP("ReferenceDoubts",
                                 "Sans doute une date, mais lue comme le renvoi « %2 ».");
    case Doubt::Ordinal:
        return QT_TRANSLATE_NOOP("ReferenceDoubts",
                                 "Sans doute un rang, mais lu comme le renvoi « %2 ».");
    case Doubt::Measure:
        return QT_TRANSLATE_NOOP("ReferenceDoubts",
                                 "Sans doute une quantité, mais lue comme le renvoi « %2 ».");
    case Doubt::OtherBook:
        return QT_TRANSLATE_NOOP(
            "ReferenceMarks",
            "Sans doute le paragraphe d'un autre livre, mais lu comme le renvoi « %2 ».");
    }
    return "";
}
} // namespace

QString doubtReason(Doubt doubt, int read, const QString &phrase)
{
    return QCoreApplication::translate("ReferenceDoubts", reasonFor(doubt))
        .replace(QStringLiteral("%1"), phrase.trimmed())
        .replace(QStringLiteral("%2"), QString::number(read));
}
